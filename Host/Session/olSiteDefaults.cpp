#include "Session/olSiteDefaults.h"

#include "State/olJsonText.h"
#include "State/olValue.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <string_view>

namespace
{

QString translated(const char *text) { return QCoreApplication::translate("olSiteDefaults", text); }

/// A key and its value in an object, as they stand in the file.
struct Member {
    QString key;
    int line;
    std::string_view value;
};

/// What is wrong, and where.
struct Fault {
    int line;
    QString what;
};

int lineOf(std::string_view text, std::size_t position)
{
    return 1 + int(std::count(text.begin(), text.begin() + std::ptrdiff_t(position), '\n'));
}

/// An object's members in their order, each as often as it stands there: a key that stands twice is a slip that must
/// not go unnoticed. The first line is that of the object's beginning.
std::optional<Fault> readMembers(std::string_view text, int firstLine, std::vector<Member> &members)
{
    olJsonReader json(text);
    const auto here = [&] { return firstLine - 1 + lineOf(text, json.position()); };
    const auto noJson = [&] { return Fault{here(), translated("here or just before, this is no JSON")}; };
    if (!json.take("{"))
        return Fault{here(), translated("an object is expected, as {\"key\": {\"value\": 1}}")};
    bool isDone = json.take("}");
    while (!isDone) {
        const auto key = json.text();
        const int line = here();
        if (!key || !json.take(":"))
            return noJson();
        const auto value = json.value();
        if (!value)
            return noJson();
        const auto isSame = [&key](const Member &member) { return member.key == *key; };
        if (std::any_of(members.begin(), members.end(), isSame))
            return Fault{line, translated("\"%1\" stands here a second time").arg(*key)};
        members.push_back({*key, line, *value});
        isDone = !json.take(",");
        if (isDone && !json.take("}"))
            return noJson();
    }
    return json.atEnd() ? std::nullopt : std::optional<Fault>(noJson());
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

QByteArray bytesOf(std::string_view text) { return {text.data(), int(text.size())}; }

} // namespace

QStringList olSiteDefaults::systemFiles()
{
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    folders.removeAll(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    QStringList files;
    for (const QString &folder : qAsConst(folders))
        files << folder + QStringLiteral("/orlo/site.json");
    return files;
}

void olSiteDefaults::read()
{
    m_read.clear();
    m_faults.clear();
    for (const QString &name : qAsConst(m_files)) {
        if (QFileInfo::exists(name))
            readFile(name);
    }
}

void olSiteDefaults::readFile(const QString &name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        m_faults << translated("The site's preferences %1 cannot be read (%2) and are ignored.")
                        .arg(name, file.errorString());
        return;
    }
    QByteArray json = file.readAll();
    // Some editors put a mark before the text.
    if (json.startsWith("\xef\xbb\xbf"))
        json.remove(0, 3);
    std::vector<Member> members;
    if (const auto found = readMembers({json.constData(), std::size_t(json.size())}, 1, members))
        return fault(name, found->line, found->what);

    File read{name, {}};
    for (const Member &member : members) {
        Line line;
        line.key = member.key.toStdString();
        line.number = member.line;
        std::vector<Member> parts;
        if (const auto found = readMembers(member.value, member.line, parts))
            return fault(name, found->line, found->what);
        for (const Member &part : parts) {
            const QString what = takePart(part.key, bytesOf(part.value), line);
            if (!what.isEmpty())
                return fault(name, part.line, QStringLiteral("\"%1\" %2").arg(member.key, what));
        }
        if (line.value.isNull() && !line.isLocked)
            return fault(name, line.number, translated("\"%1\" has neither a \"value\" nor a lock").arg(member.key));
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
        line.isLocked = !locked.empty() && boost::any_cast<bool>(locked);
        return locked.empty() ? translated("takes true or false for \"locked\"") : QString();
    }
    if (name == QLatin1String("reason")) {
        const boost::any reason = olValue::fromJson("qstring", value);
        line.reason = reason.empty() ? QString() : boost::any_cast<QString>(reason);
        return reason.empty() ? translated("takes a text for \"reason\"") : QString();
    }
    return translated("has \"%1\", where only \"value\", \"locked\" and \"reason\" can stand").arg(name);
}

olSiteSetting olSiteDefaults::early(const std::string &key, const std::string &type) const
{
    for (const File &file : m_read) {
        for (const Line &line : file.lines) {
            if (line.key == key)
                return settingOf(line, olValue::fromJson(type, line.value));
        }
    }
    return {};
}

olSiteSetting olSiteDefaults::settingOf(const Line &line, const boost::any &value)
{
    if (!line.isLocked)
        return {value, std::nullopt};
    return {value, line.reason.isEmpty() ? translated("This setting is fixed for your site.") : line.reason};
}

void olSiteDefaults::settle(const DefaultOf &defaultOf, const WhyNot &whyNot)
{
    m_settings.clear();
    m_unknown.clear();
    std::vector<File> sound;
    for (File &file : m_read) {
        std::map<std::string, olSiteSetting> settings;
        if (!settleFile(file, defaultOf, whyNot, settings))
            continue;
        // What a more important file said before stays.
        m_settings.merge(settings);
        sound.push_back(std::move(file));
    }
    m_read = std::move(sound);
}

bool olSiteDefaults::settleFile(const File &file, const DefaultOf &defaultOf, const WhyNot &whyNot,
                                std::map<std::string, olSiteSetting> &settings)
{
    QStringList unknown;
    for (const Line &line : file.lines) {
        const QString key = QString::fromStdString(line.key);
        const boost::any offered = defaultOf(line.key);
        if (offered.empty()) {
            unknown
                << translated("%1, line %2: no module has a setting \"%3\".").arg(file.name).arg(line.number).arg(key);
            continue;
        }
        const boost::any value = line.value.isNull() ? offered : valueOf(line.value, olValue::typeName(offered));
        const QString reason = whyNot(line.key, value);
        if (!reason.isEmpty()) {
            fault(file.name, line.number, QStringLiteral("\"%1\" %2").arg(key, reason));
            return false;
        }
        settings[line.key] = settingOf(line, value);
    }
    m_unknown << unknown;
    return true;
}

void olSiteDefaults::fault(const QString &file, int line, const QString &what)
{
    m_faults << translated("The site's preferences %1 are ignored: line %2: %3.").arg(file).arg(line).arg(what);
}
