#pragma once

#include "Session/olPreferencesSession.h"
#include "State/olResult.h"
#include "olHostExport.h"

#include <QString>
#include <QStringList>

#include <vector>

/// Named sets of settings, each a file of preferences: those of the person in the folder `profiles` beside the store,
/// and those of the site, which nobody changes, in that folder beside each of the site's files.
class ORLO_HOST_EXPORT olProfiles
{
public:
    struct Profile {
        QString name;
        QString file;
        bool isSites = false;
    };

    olProfiles(const QString &storeFile, const QStringList &siteFiles);

    /// By name. One of the person's stands for the site's of the same name.
    [[nodiscard]] std::vector<Profile> list() const;

    /// The file of a profile.
    [[nodiscard]] olResult<QString> fileOf(const QString &name) const;

    /// Keeps these settings under the name, in place of what the person kept under it before.
    olResult<> save(const QString &name, const olSettingValues &settings) const;
    olResult<> remove(const QString &name) const;

private:
    [[nodiscard]] QString ownFile(const QString &name) const;
    [[nodiscard]] olFailure noProfile(const QString &name) const;

    QString m_own;
    QStringList m_sites;
};
