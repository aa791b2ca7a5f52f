#pragma once

#include <QMainWindow>

#include <memory>

class olHostStatePanel;
class olJournalPanel;
class olPreferencesDialog;
class olPreferencesSession;

/// The viewer's window: what the host holds and what it was told, and the way to the preferences.
class olMainWindow : public QMainWindow
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

    [[nodiscard]] const olJournalPanel &journal() const { return *m_journal; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void addMenus();

    olPreferencesSession &m_session;
    olHostStatePanel *m_state;
    olJournalPanel *m_journal;
    std::unique_ptr<olPreferencesDialog> m_preferences;
};
