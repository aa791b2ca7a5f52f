#include "Session/olPreferencesFile.h"

#include "Session/olJsonObject.h"
#include "State/olValue.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cstddef>
#include <optional>

namespace
{

constexpr int currentFormat = 1;

QString translated(const char *text) { return QCoreApplication::translate("olPreferencesFile", text); }

olPreferencesFile::Contents failed(const QString &error) { return {{}, {}, error}; }

const olJsonMember *find(const std::vector<olJsonMember> &members, const char *key)
{
    const auto found = std::find_if(members.begin(), members.end(),
                                    [key](const olJsonMember &member) { return member.key == QLatin1String(key); });
    return found == members.end() ? nullptr : &*found;
}

QString formatError(const olJsonMember *format)
{
    if (!format)
        return translated("It is no file of preferences: it names no format.");
    const boost::any number = olValue::fromJson("double", format->text());
    if (number.empty() || !(boost::any_cast<double>(number) >= currentFormat))
        return translated("It is no file of preferences: its format is not known.");
    if (boost::any_cast<double>(number) > currentFormat)
        return translated("It was written by a newer version.");
    return {};
}

/// The value of one setting; empty, with the reason, where the file does not tell it clearly.
boost::any valueOf(const olJsonMember &setting, QString &reason)
{
    std::vector<olJsonMember> parts;
    const bool isRead = !olReadObject(setting.value, setting.line, parts);
    const olJsonMember *named = find(parts, "type");
    const olJsonMember *value = find(parts, "value");
    const boost::any type = isRead && named && value ? olValue::fromJson("string", named->text()) : boost::any();
    if (type.empty()) {
        reason = translated("has no type or no value");
        return {};
    }
    const auto &name = boost::any_cast<const std::string &>(type);
    if (!olValue::isTypeName(name)) {
        reason = translated("is of the unknown type \"%1\"").arg(QString::fromStdString(name));
        return {};
    }
    boost::any read = olValue::fromJson(name, value->text());
    if (read.empty()) {
        reason = translated("is not %1, as its type %2 asks for")
                     .arg(QString::fromStdString(olValue::expectation(name)), QString::fromStdString(name));
    }
    return read;
}

/// A private file, unless there was one with a mode of its own.
bool writeWhole(QSaveFile &out, const QByteArray &text)
{
    const bool isNew = !QFileInfo::exists(out.fileName());
    if (!out.open(QIODevice::WriteOnly))
        return false;
    if (isNew)
        out.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    return out.write(text) == text.size() && out.commit();
}

/// Into a pipe or a device, which must not be replaced.
bool writeInto(QFile &out, const QByteArray &text)
{
    return out.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && out.write(text) == text.size();
}

} // namespace

QByteArray olPreferencesFile::toJson(const olSettingValues &settings)
{
    std::string lines;
    for (const auto &[key, value] : settings) {
        const std::string type = olValue::typeName(value);
        if (type.empty())
            continue;
        lines += (lines.empty() ? "\n    " : ",\n    ") + olValue::quoted(key) + ": {\"type\": \"" + type +
                 "\", \"value\": " + olValue::toJson(value) + "}";
    }
    return QByteArray::fromStdString("{\n  \"format\": " + std::to_string(currentFormat) + ",\n  \"settings\": {" +
                                     lines + "\n  }\n}\n");
}

olPreferencesFile::Contents olPreferencesFile::fromJson(const QByteArray &text)
{
    const auto faultIn = [](const std::optional<olJsonFault> &fault) {
        return failed(translated("Line %1: %2.").arg(fault->line).arg(fault->what));
    };
    std::vector<olJsonMember> members;
    if (const auto fault = olReadObject({text.constData(), std::size_t(text.size())}, 1, members))
        return faultIn(fault);
    const QString wrongFormat = formatError(find(members, "format"));
    if (!wrongFormat.isEmpty())
        return failed(wrongFormat);
    const olJsonMember *listed = find(members, "settings");
    if (!listed)
        return failed(translated("It lists no settings."));
    std::vector<olJsonMember> settings;
    if (const auto fault = olReadObject(listed->value, listed->line, settings))
        return faultIn(fault);

    Contents contents;
    for (const olJsonMember &setting : settings) {
        const std::string key = setting.key.toStdString();
        QString reason;
        const boost::any value = valueOf(setting, reason);
        if (value.empty())
            contents.skipped.push_back({key, reason});
        else
            contents.settings[key] = value;
    }
    return contents;
}

QString olPreferencesFile::write(const QString &file, const olSettingValues &settings)
{
    const QByteArray text = toJson(settings);
    const QFileInfo place(file);
    const auto failure = [&file](const QFileDevice &out) {
        return translated("Cannot write the preferences to %1: %2.").arg(file, out.errorString());
    };
    if (place.exists() && !place.isFile()) {
        QFile out(file);
        return writeInto(out, text) ? QString() : failure(out);
    }
    QSaveFile out(file);
    return writeWhole(out, text) ? QString() : failure(out);
}

olPreferencesFile::Contents olPreferencesFile::read(const QString &file)
{
    QFile in(file);
    if (!in.open(QIODevice::ReadOnly))
        return failed(translated("Cannot read the preferences from %1: %2.").arg(file, in.errorString()));
    const QByteArray text = in.readAll();
    if (in.error() != QFile::NoError)
        return failed(translated("Cannot read the preferences from %1: %2.").arg(file, in.errorString()));
    Contents contents = fromJson(text);
    if (!contents.error.isEmpty())
        contents.error = translated("Cannot import %1. %2").arg(file, contents.error);
    return contents;
}
