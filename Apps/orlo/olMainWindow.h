#pragma once

#include "State/olHostValue.h"

#include <QMainWindow>
#include <QStringList>

#include <memory>

class QAction;
class QDockWidget;
class QLabel;
class QToolBar;
class olFactsPanel;
class olHostStatePanel;
class olJournalPanel;
class olLogTail;
class olModelFiles;
class olPreferencesDialog;
class olPreferencesSession;
class olScene;
class olSceneTree;
class olViewport;
struct olImportChoice;

/// The viewer's window: the scene as the host's state shows it, what the host holds and what it was told, and the way
/// to the preferences.
class olMainWindow : public QMainWindow, private olHostObserver
{
    Q_OBJECT

public:
    /// The session must outlive the window.
    explicit olMainWindow(olPreferencesSession &session);
    ~olMainWindow() override;

    /// Opens the preferences on a module's page; an empty name opens them where they were.
    olPreferencesDialog &openPreferences(const QString &module = {});

    /// Gives all pages back to their modules; to be called before the plug-in is unloaded.
    void closePreferences();

    /// The options and files that open what is open now, the preferences included, where somebody asked for a restart;
    /// nothing otherwise. To be asked once the window is closed.
    [[nodiscard]] const QStringList &restartArguments() const { return m_restartArguments; }

    [[nodiscard]] olScene &scene() { return *m_scene; }

    /// Reads a model into the scene, and says so where it cannot.
    void openModel(const QString &file, const olImportChoice &choice);
    void openSample();

    /// Null where the display cannot show a 3D view.
    [[nodiscard]] olViewport *viewport() { return m_viewport; }

    /// Shows the host's state and its calls, which are out of sight at first.
    void showIntegratorPanels();

    [[nodiscard]] const olJournalPanel &journal() const { return *m_journal; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void stateChanged(const olHostValueBase &value) override;
    void addCentre();
    void addDocks();
    void showTitle(const QString &open);
    void addMenus();
    void addViewActions();
    void addHelp();
    void applyWindowSettings();
    void restart();
    void dockPreferences(bool docked);
    void recall();
    void remember() const;

    olPreferencesSession &m_session;
    std::unique_ptr<olLogTail> m_log;
    std::unique_ptr<olScene> m_scene;
    std::unique_ptr<olModelFiles> m_files;
    olViewport *m_viewport = nullptr;
    QList<QDockWidget *> m_docks;
    QToolBar *m_tools = nullptr;
    QLabel *m_frameRate = nullptr;
    olSceneTree *m_tree;
    olFactsPanel *m_facts;
    olHostStatePanel *m_state;
    olJournalPanel *m_journal;
    std::unique_ptr<olPreferencesDialog> m_preferences;
    QDockWidget *m_preferencesDock = nullptr; ///< while they are docked
    QAction *m_dockPreferences = nullptr;
    bool m_isSampleOpen = false;
    QStringList m_restartArguments;
};
