#include "olTour.h"

#include "olImportDialog.h"
#include "olJournalPanel.h"
#include "olMainWindow.h"

#include "Dialog/olPreferencesDialog.h"
#include "Dialog/olSettingsTransfer.h"
#include "Exchange/olExportScene.h"
#include "Exchange/olImportJob.h"
#include "Model/olScene.h"
#include "Session/olPreferencesFile.h"
#include "View/olViewport.h"
#include "Widgets/QOLSlider.h"

#include <TDocStd_Document.hxx>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPushButton>
#include <QTextStream>

#include <cstdio>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olTour)
};

void complain(const QString &what) { std::fprintf(stderr, "orlo: %s\n", qPrintable(what)); }

constexpr double changedFieldOfView = 25.0;

/// Before they are looked at. One frame of the view may take all of the time on a busy machine, and what a layout asks
/// for comes a round later.
void letWindowsDraw()
{
    constexpr int leastRounds = 10;
    QElapsedTimer timer;
    timer.start();
    for (int round = 0; round < leastRounds || timer.elapsed() < 300; ++round)
        QApplication::processEvents(QEventLoop::AllEvents, 50);
}

template <class Control> Control *controlFor(const QWidget &window, const QString &key)
{
    const auto controls = window.findChildren<Control *>();
    for (Control *control : controls) {
        if (control->property("olSettingKeys").toStringList().contains(key))
            return control;
    }
    return nullptr;
}

/// The control of a setting, on its page in front.
template <class Control> Control *goTo(olPreferencesDialog &preferences, const char *key)
{
    const QString name = QLatin1String(key);
    return preferences.openAt(name) ? controlFor<Control>(preferences, name) : nullptr;
}

/// The line on other programs' changes has such a button, too.
void closeMessage(const olPreferencesDialog &preferences)
{
    const auto *message = preferences.findChild<QWidget *>(QStringLiteral("message"));
    message->findChild<QAbstractButton *>(QStringLiteral("closeMessage"))->click();
}

QPalette darkPalette()
{
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::AlternateBase, QColor(44, 44, 44));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::Link, QColor(102, 170, 238));
    return palette;
}

} // namespace

int olTour::run(const QString &folder)
{
    QTextStream out(stdout);
    m_folder = folder;
    if (!QDir().mkpath(folder)) {
        complain(Words::tr("the folder %1 cannot be created").arg(folder));
        return 1;
    }

    m_window.showIntegratorPanels();
    olPreferencesDialog &preferences = m_window.openPreferences();
    letWindowsDraw();
    auto *slider = goTo<QOLSlider>(preferences, "Camera fov");
    if (!slider) {
        complain(Words::tr("the camera has no page in this edition; nothing to show"));
        return 1;
    }
    bool saved = viewPicture(QStringLiteral("view-before.png"));
    saved = picture(m_window, QStringLiteral("before.png")) && saved;
    slider->setValue(changedFieldOfView);
    letWindowsDraw();
    saved = picture(preferences, QStringLiteral("preferences.png")) && saved;

    const int callsBefore = m_window.journal().calls().size();
    if (!preferences.apply()) {
        complain(Words::tr("the change could not be applied"));
        return 1;
    }
    letWindowsDraw();
    saved = viewPicture(QStringLiteral("view-after.png")) && saved;
    saved = picture(m_window, QStringLiteral("after.png")) && saved;
    const QStringList calls = m_window.journal().calls().mid(callsBefore);
    for (const auto more : {&olTour::pending, &olTour::lists, &olTour::imports, &olTour::surroundings})
        saved = (this->*more)(preferences) && saved;
    out << Words::tr("Applied: Field of View %1").arg(changedFieldOfView) << '\n';
    for (const QString &call : calls)
        out << "  " << call << '\n';
    return saved && !calls.isEmpty() ? 0 : 1;
}

/// Edits of several pages, a setting's card, and what is to wait for the next start.
bool olTour::pending(olPreferencesDialog &preferences) const
{
    auto *text = goTo<QCheckBox>(preferences, "MainWindow show button text");
    auto *grid = goTo<QCheckBox>(preferences, "RenderOptions coordinate system");
    auto *mode = goTo<QComboBox>(preferences, "Navigator mode");
    if (!text || !grid || !mode)
        return false;
    text->click();
    grid->click();
    mode->setCurrentIndex(0);
    letWindowsDraw();
    preferences.showChanges();
    bool saved = dialog(QStringLiteral("preferences-changes.png"));

    QContextMenuEvent asked(QContextMenuEvent::Mouse, {}, mode->mapToGlobal(mode->rect().bottomLeft()));
    QApplication::sendEvent(mode, &asked);
    letWindowsDraw();
    saved = picture(preferences, QStringLiteral("preferences-card.png")) && saved;
    if (QWidget *card = QApplication::activePopupWidget())
        card->close();

    saved = preferences.apply() && saved;
    letWindowsDraw();
    saved = picture(preferences, QStringLiteral("preferences-applied.png")) && saved;
    closeMessage(preferences);
    return saved;
}

/// What a search finds, what differs from the defaults, the profiles, and what was saved.
bool olTour::lists(olPreferencesDialog &preferences) const
{
    auto *search = preferences.findChild<QLineEdit *>(QStringLiteral("search"));
    search->setText(QStringLiteral("antialising"));
    letWindowsDraw();
    bool saved = picture(preferences, QStringLiteral("preferences-search.png"));
    search->clear();
    auto *changedOnly = preferences.findChild<QCheckBox *>(QStringLiteral("changedOnly"));
    changedOnly->setChecked(true);
    letWindowsDraw();
    saved = picture(preferences, QStringLiteral("preferences-changed.png")) && saved;
    changedOnly->setChecked(false);

    const auto *more = preferences.findChild<QPushButton *>(QStringLiteral("more"));
    more->menu()->popup(more->mapToGlobal(more->rect().bottomLeft()));
    more->menu()->setActiveAction(preferences.findChild<QMenu *>(QStringLiteral("profiles"))->menuAction());
    letWindowsDraw();
    saved = picture(preferences, QStringLiteral("preferences-profiles.png")) && saved;
    more->menu()->close();
    preferences.transfer().showHistory();
    return dialog(QStringLiteral("preferences-history.png")) && saved;
}

/// A page whose settings wait for an import, what a file of preferences would change, and the import of a model.
bool olTour::imports(olPreferencesDialog &preferences) const
{
    preferences.open(QStringLiteral("Step"));
    letWindowsDraw();
    bool saved = picture(preferences, QStringLiteral("preferences-import.png"));

    const QString file = QDir(m_folder).filePath(QStringLiteral("settings.json"));
    const olResult<> written = olPreferencesFile::write(
        file,
        {{"Camera fov", 40.0f}, {"Navigator mode", 3}, {"RenderOptions near plane", 5.0f}, {"Powerwall height", true}});
    if (!written.isOk())
        complain(written.error());
    preferences.transfer().importFrom(file);
    saved = dialog(QStringLiteral("preferences-rows.png")) && saved;

    const QString model = QDir(m_folder).filePath(QStringLiteral("sample.step"));
    const olResult<QStringList> exported = olExportScene(m_window.scene().document(), model);
    if (!exported.isOk())
        complain(exported.error());
    olImportDialog import({olImportJob::of(model)}, true, &m_window, [](const std::string &) { return QString(); });
    import.show();
    letWindowsDraw();
    return picture(import, QStringLiteral("import.png")) && exported.isOk() && saved;
}

/// Where the site has locked a setting, in the dark, and as a panel on a small screen.
bool olTour::surroundings(olPreferencesDialog &preferences) const
{
    bool saved = true;
    preferences.open(QStringLiteral("Camera"));
    letWindowsDraw();
    const auto *locked = preferences.findChild<QPushButton *>(QStringLiteral("locked"));
    if (locked->isVisible()) {
        locked->menu()->actions().first()->trigger();
        letWindowsDraw();
        saved = picture(preferences, QStringLiteral("preferences-locks.png"));
        closeMessage(preferences);
    }

    const QPalette light = QApplication::palette();
    QApplication::setPalette(darkPalette());
    preferences.open(QStringLiteral("Render Options"));
    letWindowsDraw();
    saved = picture(preferences, QStringLiteral("preferences-dark.png")) && saved;
    QApplication::setPalette(light);

    preferences.open(QStringLiteral("Camera"));
    const QSize smallScreen(1366, 768);
    m_window.resize(smallScreen);
    for (const char *dock : {"hostStateDock", "hostCallsDock"})
        m_window.findChild<QWidget *>(QLatin1String(dock))->hide();
    m_window.findChild<QAction *>(QStringLiteral("dockPreferences"))->setChecked(true);
    letWindowsDraw();
    saved = picture(m_window, QStringLiteral("preferences-panel.png")) && saved;
    m_window.findChild<QAction *>(QStringLiteral("dockPreferences"))->setChecked(false);
    return saved;
}

/// Of one that the preferences have opened; it closes then.
bool olTour::dialog(const QString &name) const
{
    letWindowsDraw();
    QWidget *shown = QApplication::activeModalWidget();
    const bool saved = shown && picture(*shown, name);
    if (shown)
        shown->close();
    letWindowsDraw();
    return saved;
}

bool olTour::viewPicture(const QString &name) const
{
    olViewport *viewport = m_window.viewport();
    if (!viewport) {
        complain(Words::tr("this display shows no 3D view; there is no picture of it"));
        return false;
    }
    return save(viewport->picture(), name);
}

/// With what has popped up over it.
bool olTour::picture(QWidget &widget, const QString &name) const
{
    QPixmap shown = widget.grab();
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget *popup : windows) {
        if (popup->isVisible() && popup->windowType() == Qt::Popup)
            QPainter(&shown).drawPixmap(widget.mapFromGlobal(popup->pos()), popup->grab());
    }
    return save(shown.toImage(), name);
}

bool olTour::save(const QImage &image, const QString &name) const
{
    const QString file = QDir(m_folder).absoluteFilePath(name);
    // Worth the time: they are kept with the documents.
    constexpr int smallest = 0;
    if (!image.convertToFormat(QImage::Format_RGB888).save(file, "PNG", smallest)) {
        complain(Words::tr("the picture %1 cannot be written").arg(file));
        return false;
    }
    QTextStream(stdout) << Words::tr("Picture: %1").arg(file) << '\n';
    return true;
}
