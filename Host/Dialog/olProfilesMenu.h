#pragma once

#include "Session/olProfiles.h"

#include <QMenu>
#include <QString>

class olPendingChanges;
class olPreferencesSession;

/// The menu of the profiles: those there are, to be applied, and ways to keep the present settings as one and to delete
/// one.
class olProfilesMenu : public QMenu
{
    Q_OBJECT

public:
    olProfilesMenu(const olProfiles &profiles, QWidget *parent);

    /// Asks for a name, and which of the settings in force to keep under it.
    void saveAs(const olPreferencesSession &session, const olPendingChanges &pending);

signals:
    void chosen(const QString &name, const QString &file);
    void saveAsked();
    void done(const QString &note);
    void failed(const QString &error);

private:
    void list();
    void remove(const QString &name);
    [[nodiscard]] bool isReplaceAgreed(const QString &name);

    olProfiles m_profiles;
    QMenu *m_removal;
};
