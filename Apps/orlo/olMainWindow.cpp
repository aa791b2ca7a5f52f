#include "olMainWindow.h"

#include "olHostStatePanel.h"
#include "olJournalPanel.h"

#include "Preferences/olPreferencesDialog.h"
#include "Preferences/olPreferencesSession.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QSplitter>
#include <QStatusBar>
#include <QToolBar>

olMainWindow::olMainWindow(olPreferencesSession &session)
    : m_session(session), m_state(new olHostStatePanel), m_journal(new olJournalPanel)
{
    setWindowTitle(tr("ORLO"));
    auto *panels = new QSplitter;
    panels->addWidget(m_state);
    panels->addWidget(m_journal);
    panels->setChildrenCollapsible(false);
    setCentralWidget(panels);
    addMenus();
    statusBar()->showMessage(tr("Edit > Preferences changes what you see here."));

    const QFontMetrics metrics = fontMetrics();
    resize(metrics.averageCharWidth() * 150, metrics.height() * 40);
}

olMainWindow::~olMainWindow() = default;

olPreferencesDialog &olMainWindow::openPreferences(const QString &module)
{
    if (!m_preferences)
        m_preferences = std::make_unique<olPreferencesDialog>(m_session, this);
    m_preferences->open(module);
    return *m_preferences;
}

void olMainWindow::closePreferences() { m_preferences.reset(); }

void olMainWindow::closeEvent(QCloseEvent *event)
{
    // The preferences are not modal, and a window of their own would keep the program running. Whoever wants to stay
    // with the edits in them stays in the program.
    if (m_preferences)
        m_preferences->reject();
    if (m_preferences && m_preferences->isVisible())
        event->ignore();
    else
        QMainWindow::closeEvent(event);
}

void olMainWindow::addMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    QAction *newScene = file->addAction(tr("&New Scene"));
    newScene->setShortcut(QKeySequence::New);
    connect(newScene, &QAction::triggered, this, [this] { m_session.newScene(); });
    file->addSeparator();
    QAction *quit = file->addAction(tr("&Quit"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);

    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    QAction *preferences = edit->addAction(tr("&Preferences..."));
    preferences->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_Comma));
    connect(preferences, &QAction::triggered, this, [this] { openPreferences(); });
}
