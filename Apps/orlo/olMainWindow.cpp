#include "olMainWindow.h"

#include "olAbout.h"
#include "olFactsPanel.h"
#include "olHostStatePanel.h"
#include "olImportChoice.h"
#include "olJournalPanel.h"
#include "olModelFiles.h"
#include "olSceneTree.h"
#include "olSupport.h"
#include "olToolIcons.h"

#include "Dialog/olPreferencesDialog.h"
#include "Dialog/olWindowPlace.h"
#include "Model/olScene.h"
#include "Session/olPreferencesSession.h"
#include "State/olHostState.h"
#include "Utilities/olWithoutMnemonic.h"
#include "View/olViewport.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{

/// A window that cannot be seen could not be brought back.
constexpr double faintestWindow = 0.1;

// What the window remembers from one run to the next, in the settings of the application.
constexpr auto geometryKey = "window/geometry";
constexpr auto panelsKey = "window/panels";
constexpr auto dockedKey = "window/preferencesDocked";

} // namespace

olMainWindow::olMainWindow(olPreferencesSession &session)
    : m_session(session),
      m_log(std::make_unique<olLogTail>()),
      m_scene(std::make_unique<olScene>()),
      m_files(std::make_unique<olModelFiles>(*this, *m_scene)),
      m_tree(new olSceneTree(*m_scene)),
      m_facts(new olFactsPanel(*m_scene)),
      m_state(new olHostStatePanel),
      m_journal(new olJournalPanel)
{
    showTitle({});
    addCentre();
    addDocks();
    addMenus();
    addViewActions();
    addHelp();
    m_frameRate = new QLabel;
    m_frameRate->setObjectName(QStringLiteral("frameRate"));
    statusBar()->addPermanentWidget(m_frameRate);
    statusBar()->showMessage(tr("Edit > Preferences changes what you see here."));

    recall();
    olHostState::the().addObserver(*this);
    applyWindowSettings();
}

olMainWindow::~olMainWindow() { olHostState::the().removeObserver(*this); }

void olMainWindow::recall()
{
    const QSettings memory;
    const QRect room = QApplication::primaryScreen()->availableGeometry();
    const int letter = olWindowPlace::letterWidth(fontMetrics());
    if (!restoreGeometry(memory.value(QLatin1String(geometryKey)).toByteArray()))
        resize(QSize(letter * 150, fontMetrics().height() * 40).boundedTo(room.size()));
    restoreState(memory.value(QLatin1String(panelsKey)).toByteArray());
}

void olMainWindow::remember() const
{
    QSettings memory;
    memory.setValue(QLatin1String(geometryKey), saveGeometry());
    memory.setValue(QLatin1String(panelsKey), saveState());
}

void olMainWindow::showIntegratorPanels()
{
    for (QDockWidget *dock : m_docks)
        dock->show();
}

void olMainWindow::addCentre()
{
    if (!olViewport::isSupported()) {
        auto *reason = new QLabel(
            tr("The 3D view needs an X display, or XWayland, with OpenGL. The preferences work without it."));
        reason->setAlignment(Qt::AlignCenter);
        reason->setWordWrap(true);
        setCentralWidget(reason);
        return;
    }
    m_viewport = new olViewport;
    m_viewport->setScene(m_scene.get());
    setCentralWidget(m_viewport);
    connect(m_viewport, &olViewport::failed, this, [this](const QString &reason) { statusBar()->showMessage(reason); });
    connect(m_viewport, &olViewport::framesPerSecondMeasured, this,
            [this](double frames) { m_frameRate->setText(tr("%1 frames/s").arg(frames, 0, 'f', 1)); });
    connect(m_viewport, &olViewport::selectionChanged, m_tree, &olSceneTree::showSelection);
    connect(m_tree, &olSceneTree::selectionChanged, m_viewport, &olViewport::select);
    connect(m_tree, &olSceneTree::zoomWanted, m_viewport, &olViewport::zoomToSelection);
    connect(m_viewport, &olViewport::selectionChanged, m_facts, &olFactsPanel::showFacts);
}

void olMainWindow::addDocks()
{
    const auto add = [this](const QString &title, const char *name, QWidget *content, Qt::DockWidgetArea area) {
        auto *dock = new QDockWidget(title);
        dock->setObjectName(QLatin1String(name));
        dock->setWidget(content);
        addDockWidget(area, dock);
        m_docks.append(dock);
        return dock;
    };
    QDockWidget *tree = add(tr("Scene"), "sceneDock", m_tree, Qt::LeftDockWidgetArea);
    QDockWidget *facts = add(tr("Facts"), "factsDock", m_facts, Qt::LeftDockWidgetArea);
    connect(m_tree, &olSceneTree::selectionChanged, m_facts, &olFactsPanel::showFacts);
    QDockWidget *state = add(tr("Host State"), "hostStateDock", m_state, Qt::RightDockWidgetArea);
    QDockWidget *calls = add(tr("Host Calls"), "hostCallsDock", m_journal, Qt::BottomDockWidgetArea);
    const int letter = olWindowPlace::letterWidth(fontMetrics());
    resizeDocks({tree, state}, {letter * 32, letter * 45}, Qt::Horizontal);
    const int line = fontMetrics().height();
    resizeDocks({tree, facts, calls}, {line * 20, line * 12, line * 10}, Qt::Vertical);
    // They are for whoever writes modules; everyone else gets the room for the model.
    state->hide();
    calls->hide();
}

void olMainWindow::stateChanged(const olHostValueBase &value)
{
    const olHostState &state = olHostState::the();
    if (&value == &state.fpsShown || &value == &state.windowOpacity || &value == &state.mainWindowDocking ||
        &value == &state.buttonTextShown)
        applyWindowSettings();
}

void olMainWindow::applyWindowSettings()
{
    const olHostState &state = olHostState::the();
    m_frameRate->setVisible(state.fpsShown);
    const double opacity = state.windowOpacity;
    setWindowOpacity(std::isfinite(opacity) ? std::clamp(opacity, faintestWindow, 1.0) : 1.0);
    const auto movable = QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable;
    const auto closable = QDockWidget::DockWidgetClosable;
    for (QDockWidget *dock : m_docks) {
        dock->setFeatures(state.mainWindowDocking ? movable | closable : QDockWidget::DockWidgetFeatures(closable));
        if (!state.mainWindowDocking)
            dock->setFloating(false);
    }
    m_tools->setToolButtonStyle(state.buttonTextShown ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
}

void olMainWindow::addViewActions()
{
    QMenu *view = menuBar()->addMenu(tr("&View"));
    m_tools = addToolBar(tr("View"));
    m_tools->setObjectName(QStringLiteral("viewTools"));
    QAction *all = m_tools->addAction(olToolIcons::showAll(), tr("Show &All"));
    all->setShortcut(QKeySequence(Qt::Key_Home));
    QAction *zoom = m_tools->addAction(olToolIcons::zoomTo(), tr("&Zoom To"));
    zoom->setShortcut(QKeySequence(Qt::Key_End));
    // East Asian texts have their mnemonic in brackets, which mean nothing on a button.
    for (QAction *action : {all, zoom}) {
        action->setIconText(olWithoutMnemonic(action->text()));
        action->setToolTip(action->iconText());
    }
    zoom->setToolTip(tr("Brings what is selected near"));
    view->addActions({all, zoom});
    view->addSeparator();
    QAction *stereo = view->addAction(tr("Stereo for &Red and Cyan Glasses"));
    QAction *rays = view->addAction(tr("Trace Ra&ys"));
    QAction *edges = view->addAction(tr("&Edges"));
    view->addSeparator();
    for (QDockWidget *dock : m_docks)
        view->addAction(dock->toggleViewAction());
    for (QAction *action : {all, zoom, stereo, rays, edges})
        action->setEnabled(m_viewport != nullptr);
    stereo->setCheckable(true);
    rays->setCheckable(true);
    edges->setCheckable(true);
    if (!m_viewport)
        return;
    connect(all, &QAction::triggered, m_viewport, &olViewport::showAll);
    connect(zoom, &QAction::triggered, m_viewport, &olViewport::zoomToSelection);
    connect(stereo, &QAction::toggled, m_viewport, &olViewport::setAnaglyph);
    connect(rays, &QAction::toggled, m_viewport, &olViewport::setRaytracing);
    connect(edges, &QAction::toggled, m_viewport, &olViewport::setEdges);
}

olPreferencesDialog &olMainWindow::openPreferences(const QString &module)
{
    if (!m_preferences) {
        m_preferences = std::make_unique<olPreferencesDialog>(m_session, this);
        m_preferences->offerPreview();
        connect(m_preferences.get(), &olPreferencesDialog::restartAsked, this, &olMainWindow::restart);
        if (m_dockPreferences->isChecked())
            dockPreferences(true);
    }
    if (m_preferencesDock)
        m_preferencesDock->show();
    m_preferences->open(module);
    return *m_preferences;
}

void olMainWindow::openModel(const QString &file, const olImportChoice &choice) { m_files->openAtOnce(file, choice); }

void olMainWindow::openSample()
{
    m_scene->loadSample();
    m_files->forgetOpenFiles();
    m_isSampleOpen = true;
    showTitle(tr("Sample"));
    m_session.newScene();
}

void olMainWindow::showTitle(const QString &open)
{
    setWindowTitle(open.isEmpty() ? tr("ORLO") : tr("%1 - ORLO").arg(open));
}

void olMainWindow::closePreferences()
{
    m_preferences.reset();
    delete std::exchange(m_preferencesDock, nullptr);
}

/// As a panel of this window, or as a window of its own; what is edited in them stays.
void olMainWindow::dockPreferences(bool docked)
{
    QSettings().setValue(QLatin1String(dockedKey), docked);
    if (!m_preferences || docked == (m_preferencesDock != nullptr))
        return;
    const bool isShown = m_preferences->isVisible();
    if (docked) {
        m_preferencesDock = new QDockWidget(m_preferences->windowTitle(), this);
        m_preferencesDock->setObjectName(QStringLiteral("preferencesDock"));
        m_preferencesDock->setFeatures(QDockWidget::DockWidgetClosable | QDockWidget::DockWidgetMovable);
        m_preferencesDock->installEventFilter(this);
        m_preferences->setParent(m_preferencesDock, Qt::Widget);
        m_preferencesDock->setWidget(m_preferences.get());
        connect(m_preferences.get(), &QDialog::finished, m_preferencesDock, &QWidget::hide);
        addDockWidget(Qt::RightDockWidgetArea, m_preferencesDock);
        resizeDocks({m_preferencesDock}, {std::min(m_preferences->panelWidth(), width() / 2)}, Qt::Horizontal);
        m_preferencesDock->setVisible(isShown);
    } else {
        m_preferences->setParent(this, Qt::Dialog);
        delete std::exchange(m_preferencesDock, nullptr);
    }
    if (isShown)
        m_preferences->open();
}

/// Closing the panel is leaving the preferences, where somebody may want to stay with the edits.
bool olMainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_preferencesDock || event->type() != QEvent::Close)
        return QMainWindow::eventFilter(watched, event);
    m_preferences->reject();
    event->setAccepted(!m_preferences->isVisible());
    return !event->isAccepted();
}

/// The page that was open is remembered by the preferences themselves.
void olMainWindow::restart()
{
    m_restartArguments = QStringList{QStringLiteral("--preferences")} + m_files->openFiles();
    if (m_isSampleOpen && m_files->openFiles().isEmpty())
        m_restartArguments << QStringLiteral("--sample");
    // Whoever has edits and wants to stay with them stays.
    if (!close())
        m_restartArguments.clear();
}

void olMainWindow::closeEvent(QCloseEvent *event)
{
    // The preferences are not modal, and a window of their own would keep the program running. Whoever wants to stay
    // with the edits in them stays in the program.
    if (m_preferences)
        m_preferences->reject();
    if (m_preferences && m_preferences->isVisible()) {
        event->ignore();
        return;
    }
    remember();
    QMainWindow::closeEvent(event);
}

void olMainWindow::addMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    QAction *newScene = file->addAction(tr("&New Scene"));
    newScene->setShortcut(QKeySequence::New);
    connect(newScene, &QAction::triggered, this, [this] {
        m_scene->clear();
        m_files->forgetOpenFiles();
        m_isSampleOpen = false;
        m_session.newScene();
    });
    QAction *sample = file->addAction(tr("Open the &Sample"));
    connect(sample, &QAction::triggered, this, &olMainWindow::openSample);
    m_files->addTo(*file);
    m_files->offerSettings([this](const std::string &key) { return m_session.lockReason(key).value_or(QString()); },
                           [this](const olImportFineness::Values &values) {
                               for (const auto &value : values)
                                   m_session.choose(value.first);
                               return m_session.commit({}, values).error();
                           });
    connect(m_files.get(), &olModelFiles::imported, this, [this] { m_session.newScene(); });
    connect(m_files.get(), &olModelFiles::told, this, [this](const QString &text) { statusBar()->showMessage(text); });
    connect(m_files.get(), &olModelFiles::openFilesChanged, this, [this] {
        const QStringList &files = m_files->openFiles();
        const QString first = files.isEmpty() ? QString() : QFileInfo(files.first()).fileName();
        showTitle(files.size() < 2 ? first : tr("%1 and %n more", nullptr, files.size() - 1).arg(first));
    });
    file->addSeparator();
    QAction *quit = file->addAction(tr("&Quit"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);

    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    QAction *preferences = edit->addAction(tr("&Preferences..."));
    preferences->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_Comma));
    connect(preferences, &QAction::triggered, this, [this] { openPreferences(); });
    m_dockPreferences = edit->addAction(tr("Preferences as a Pa&nel"));
    m_dockPreferences->setObjectName(QStringLiteral("dockPreferences"));
    m_dockPreferences->setCheckable(true);
    m_dockPreferences->setChecked(QSettings().value(QLatin1String(dockedKey)).toBool());
    connect(m_dockPreferences, &QAction::toggled, this, &olMainWindow::dockPreferences);
}

void olMainWindow::addHelp()
{
    QMenu *help = menuBar()->addMenu(tr("&Help"));
    QAction *support = help->addAction(tr("Copy &Support Information"));
    connect(support, &QAction::triggered, this, [this] {
        QApplication::clipboard()->setText(olSupportInformation(m_session, *m_log));
        statusBar()->showMessage(tr("Versions, changed settings and the end of the log are on the clipboard."));
    });
    QAction *about = help->addAction(tr("&About ORLO"));
    connect(about, &QAction::triggered, this, [this] { olShowAbout(*this); });
}
