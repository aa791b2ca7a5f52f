#include "Session/olProfiles.h"

#include "Session/olPreferencesFile.h"
#include "Store/olPreferencesStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <map>

namespace
{

const QLatin1String suffix(".json");

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olProfiles)
};

QString folderBeside(const QString &file) { return QFileInfo(file).absoluteDir().filePath(QStringLiteral("profiles")); }

/// Why a profile cannot bear the name; empty where it can.
QString fault(const QString &name)
{
    const bool isName = !name.isEmpty() && !name.startsWith(QLatin1Char('.')) && !name.contains(QLatin1Char('/')) &&
                        !name.contains(QChar(0));
    return isName
               ? QString()
               : Words::tr(
                     "\"%1\" is no name for a profile: it must not be empty, have a slash in it or begin with a dot.")
                     .arg(name);
}

} // namespace

olProfiles::olProfiles(const QString &storeFile, const QStringList &siteFiles) : m_own(folderBeside(storeFile))
{
    for (const QString &file : siteFiles)
        m_sites << folderBeside(file);
}

std::vector<olProfiles::Profile> olProfiles::list() const
{
    std::map<QString, Profile> found;
    for (const QString &folder : QStringList(m_own) + m_sites) {
        const QStringList files = QDir(folder).entryList({QStringLiteral("*.json")}, QDir::Files);
        for (const QString &file : files) {
            const QString name = file.chopped(suffix.size());
            if (fault(name).isEmpty())
                found.emplace(name, Profile{name, QDir(folder).filePath(file), folder != m_own});
        }
    }
    std::vector<Profile> profiles;
    for (const auto &profile : found)
        profiles.push_back(profile.second);
    return profiles;
}

QString olProfiles::ownFile(const QString &name) const { return QDir(m_own).filePath(name + suffix); }

olFailure olProfiles::noProfile(const QString &name) const
{
    const QString wrong = fault(name);
    return {wrong.isEmpty() ? Words::tr("There is no profile \"%1\".").arg(name) : wrong};
}

olResult<QString> olProfiles::fileOf(const QString &name) const
{
    for (const Profile &profile : list()) {
        if (profile.name == name)
            return profile.file;
    }
    return noProfile(name);
}

olResult<> olProfiles::save(const QString &name, const olSettingValues &settings) const
{
    const QString wrong = fault(name);
    if (!wrong.isEmpty())
        return olFailure{wrong};
    if (!olPreferencesStore::makeFolder(m_own))
        return olFailure{Words::tr("Cannot make the folder %1.").arg(m_own)};
    return olPreferencesFile::write(ownFile(name), settings);
}

olResult<> olProfiles::remove(const QString &name) const
{
    QFile file(ownFile(name));
    if (!fault(name).isEmpty() || !file.exists()) {
        if (fileOf(name).isOk())
            return olFailure{Words::tr("The profile \"%1\" is the site's and cannot be deleted.").arg(name)};
        return noProfile(name);
    }
    if (file.remove())
        return {};
    return olFailure{Words::tr("Cannot delete the profile %1: %2.").arg(file.fileName(), file.errorString())};
}
