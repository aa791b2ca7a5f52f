#include "Session/olSiteDefaults.h"

#include "Session/olJsonObject.h"
#include "State/olValue.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olSiteDefaults)
};

/// Whether nobody but root can change it.
bool isRootsAlone(const struct stat &status)
{
    return status.st_uid == 0 && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

bool isInFolderOfRoots(const QString &file)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(QFileInfo(file).path()).constData(), &status) == 0 && isRootsAlone(status);
}

/// Of that type, else of the type that the text itself is of, so that somebody can say what is wrong with it.
boost::any valueOf(const QByteArray &json, const std::string &type)
{
    boost::any value;
    for (const std::string &candidate : {type, std::string("bool"), std::string("int"), std::string("double"),
                                         std::string("qstring"), std::string("floats")}) {
        if (value.empty())
            value = olValue::fromJson(candidate, json);
    }
    return value;
}

/// Opens a site's file. Returns why it does not count, an empty text where it does; nothing where there is none.
std::optional<QString> open(QFile &file, olSiteOwner owner)
{
    const QString fileName = file.fileName(); // the file forgets it when it is given a descriptor
    const QByteArray name = QFile::encodeName(fileName);
    struct stat status = {};
    if (::lstat(name.constData(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR))
        return std::nullopt;
    // Whatever it is, nobody waits for it.
    const int descriptor = ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return Words::tr("it cannot be read: %1").arg(qt_error_string(errno));
    const bool isKnown = ::fstat(descriptor, &status) == 0;
    file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle);
    if (!isKnown || !S_ISREG(status.st_mode))
        return Words::tr("it is no regular file");
    // What it is a link to must not lie where others can replace it either.
    const bool isSafe = owner == olSiteOwner::Anyone || (isRootsAlone(status) && isInFolderOfRoots(fileName) &&
                                                         isInFolderOfRoots(QFileInfo(fileName).canonicalFilePath()));
    return isSafe ? QString() : Words::tr("only root may own and write the file and its folder");
}

} // namespace

QStringList olSiteDefaults::systemFiles()
{
    const QString first = QStringLiteral("/etc/xdg");
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    folders.removeAll(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    folders.removeAll(first);
    folders.prepend(first);
    QStringList files;
    for (const QString &folder : qAsConst(folders))
        files << folder + QStringLiteral("/orlo/site.json");
    return files;
}

void olSiteDefaults::read()
{
    for (const QString &name : qAsConst(m_files))
        readFile(name);
}

void olSiteDefaults::readFile(const QString &name)
{
    QFile file(name);
    const std::optional<QString> reason = open(file, m_owner);
    if (!reason)
        return;
    if (!reason->isEmpty())
        return reject(name, *reason);
    QByteArray json = file.readAll();
    if (file.error() != QFile::NoError)
        return reject(name, Words::tr("it cannot be read: %1").arg(file.errorString()));
    // Some editors put a mark before the text.
    if (json.startsWith("\xef\xbb\xbf"))
        json.remove(0, 3);

    const auto rejectFor = [&](const olJsonFault &found) {
        reject(name, Words::tr("line %1: %2").arg(found.line).arg(found.what));
    };
    std::vector<olJsonMember> members;
    if (const auto found = olReadObject({json.constData(), std::size_t(json.size())}, 1, members))
        return rejectFor(*found);
    File read{name, {}};
    for (const olJsonMember &member : members) {
        std::vector<olJsonMember> parts;
        if (member.value.front() == '{') {
            if (const auto found = olReadObject(member.value, member.line, parts))
                return rejectFor(*found);
        }
        Line line;
        line.key = member.key.toStdString();
        line.number = member.line;
        for (const olJsonMember &part : parts) {
            const QString what = takePart(part.key, part.text(), line);
            if (!what.isEmpty())
                fault(name, part.line, Words::tr("\"%1\" %2").arg(member.key, what));
        }
        if (line.value.isNull() && !line.isLocked)
            fault(name, line.number, Words::tr("\"%1\" has neither a \"value\" nor a lock").arg(member.key));
        else
            read.lines.push_back(std::move(line));
    }
    m_read.push_back(std::move(read));
}

/// Returns what is wrong with it; empty where nothing is.
QString olSiteDefaults::takePart(const QString &name, const QByteArray &value, Line &line)
{
    if (name == QLatin1String("value")) {
        line.value = value;
        return {};
    }
    if (name == QLatin1String("locked")) {
        const boost::any locked = olValue::fromJson("bool", value);
        // What cannot be read restricts.
        line.isLocked = locked.empty() || boost::any_cast<bool>(locked);
        return locked.empty() ? Words::tr("takes true or false for \"locked\"") : QString();
    }
    if (name == QLatin1String("reason")) {
        const boost::any reason = olValue::fromJson("qstring", value);
        line.reason = reason.empty() ? QString() : boost::any_cast<QString>(reason);
        return reason.empty() ? Words::tr("takes a text for \"reason\"") : QString();
    }
    return Words::tr("has \"%1\", where only \"value\", \"locked\" and \"reason\" can stand").arg(name);
}

olSiteSetting olSiteDefaults::early(const std::string &key, const std::string &type) const
{
    for (const File &file : m_read) {
        for (const Line &line : file.lines) {
            if (line.key == key)
                return settingOf(file.name, line, olValue::fromJson(type, line.value));
        }
    }
    return {};
}

olSiteSetting olSiteDefaults::settingOf(const QString &file, const Line &line, const boost::any &value)
{
    if (!line.isLocked)
        return {value, std::nullopt, file};
    return {value, line.reason.isEmpty() ? Words::tr("This setting is fixed for your site.") : line.reason, file};
}

void olSiteDefaults::resolve(const DefaultOf &defaultOf, const WhyNot &whyNot)
{
    for (const File &file : m_read) {
        for (const Line &line : file.lines)
            resolveLine(file.name, line, defaultOf(line.key), whyNot);
    }
}

void olSiteDefaults::resolveLine(const QString &file, const Line &line, const boost::any &offered, const WhyNot &whyNot)
{
    const QString key = QString::fromStdString(line.key);
    if (offered.empty()) {
        m_unknown << Words::tr("%1, line %2: no module has a setting \"%3\".").arg(file).arg(line.number).arg(key);
        return;
    }
    boost::any value = line.value.isNull() ? offered : valueOf(line.value, olValue::typeName(offered));
    const QString reason = whyNot(line.key, value);
    if (!reason.isEmpty()) {
        fault(file, line.number, Words::tr("\"%1\" %2").arg(key, reason));
        value = offered;
    }
    // What a more important file said before stays.
    m_settings.emplace(line.key, settingOf(file, line, value));
}

void olSiteDefaults::reject(const QString &file, const QString &why)
{
    m_faults << Words::tr("The site's preferences %1 are ignored: %2.").arg(file, why);
}

void olSiteDefaults::fault(const QString &file, int line, const QString &what)
{
    m_faults << Words::tr("The site's preferences %1, line %2: %3.").arg(file).arg(line).arg(what);
}
