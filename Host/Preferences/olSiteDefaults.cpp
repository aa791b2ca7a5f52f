#include "Preferences/olSiteDefaults.h"

#include "Embedded/olJsonText.h"
#include "Embedded/olValue.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include <algorithm>

namespace
{

QString translated(const char *text) { return QCoreApplication::translate("olSiteDefaults", text); }

struct KeyPlace {
    QString key;
    int line;
};

int lineOf(const QByteArray &text, int offset) { return 1 + text.left(offset).count('\n'); }

/// The end of the text that begins with a quote there.
int endOfText(const QByteArray &json, int begin)
{
    int end = begin + 1;
    while (end < json.size() && json.at(end) != '"')
        end += json.at(end) == '\\' ? 2 : 1;
    return end + 1;
}

/// The outermost object's keys in their order, each as often as it stands there, which a parsed document does not
/// tell. The text is known to be JSON.
std::vector<KeyPlace> outermostKeys(const QByteArray &json)
{
    std::vector<KeyPlace> keys;
    int depth = 0;
    bool isKeyNext = true;
    for (int position = 0; position < json.size(); ++position) {
        const char character = json.at(position);
        if (character == '{' || character == '[')
            ++depth;
        else if (character == '}' || character == ']')
            --depth;
        else if (character == ',' && depth == 1)
            isKeyNext = true;
        if (character != '"')
            continue;
        const int end = endOfText(json, position);
        if (depth == 1 && isKeyNext) {
            const std::string_view quoted(json.constData() + position, std::size_t(end - position));
            keys.push_back({olJsonReader(quoted).text().value_or(QString()), lineOf(json, position)});
            isKeyNext = false;
        }
        position = end - 1;
    }
    return keys;
}

/// What is wrong with what stands under a key, whatever the key; empty where nothing is.
QString faultOf(const QJsonValue &entry)
{
    if (!entry.isObject())
        return translated("takes an object, as {\"value\": 1}");
    const QJsonObject object = entry.toObject();
    const QStringList names = object.keys();
    for (const QString &name : names) {
        if (name != QLatin1String("value") && name != QLatin1String("locked") && name != QLatin1String("reason"))
            return translated("has \"%1\", where only \"value\", \"locked\" and \"reason\" can stand").arg(name);
    }
    if (object.contains(QLatin1String("locked")) && !object.value(QLatin1String("locked")).isBool())
        return translated("takes true or false for \"locked\"");
    if (object.contains(QLatin1String("reason")) && !object.value(QLatin1String("reason")).isString())
        return translated("takes a text for \"reason\"");
    if (!object.contains(QLatin1String("value")) && !object.value(QLatin1String("locked")).toBool())
        return translated("has neither a \"value\" nor a lock");
    return {};
}

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
    const QByteArray json = file.readAll();
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (error.error != QJsonParseError::NoError)
        return fault(name, lineOf(json, error.offset), error.errorString());
    if (!document.isObject())
        return fault(name, 1, translated("the outermost value is no object"));

    File read{name, {}};
    const QJsonObject all = document.object();
    for (const KeyPlace &place : outermostKeys(json)) {
        const QString what = faultOf(all.value(place.key));
        if (!what.isEmpty())
            return fault(name, place.line, QStringLiteral("\"%1\" %2").arg(place.key, what));
        const std::string key = place.key.toStdString();
        const auto isSame = [&key](const Line &line) { return line.key == key; };
        if (std::any_of(read.lines.begin(), read.lines.end(), isSame))
            return fault(name, place.line, translated("\"%1\" stands here a second time").arg(place.key));
        const QJsonObject object = all.value(place.key).toObject();
        read.lines.push_back({key, place.line, object.value(QLatin1String("value")),
                              object.value(QLatin1String("locked")).toBool(),
                              object.value(QLatin1String("reason")).toString()});
    }
    m_read.push_back(std::move(read));
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

void olSiteDefaults::settle(const DefaultOf &defaultOf)
{
    m_settings.clear();
    m_unknown.clear();
    std::vector<File> sound;
    for (File &file : m_read) {
        std::map<std::string, olSiteSetting> settings;
        if (!settleFile(file, defaultOf, settings))
            continue;
        // What a more important file said before stays.
        m_settings.merge(settings);
        sound.push_back(std::move(file));
    }
    m_read = std::move(sound);
}

bool olSiteDefaults::settleFile(const File &file, const DefaultOf &defaultOf,
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
        const std::string type = olValue::typeName(offered);
        const boost::any value = line.value.isUndefined() ? offered : olValue::fromJson(type, line.value);
        if (value.empty()) {
            fault(file.name, line.number,
                  translated("\"%1\" takes %2").arg(key, QString::fromStdString(olValue::expectation(type))));
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
