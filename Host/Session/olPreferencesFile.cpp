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

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olPreferencesFile)
};

const olJsonMember *find(const std::vector<olJsonMember> &members, const char *key)
{
    const auto found = std::find_if(members.begin(), members.end(),
                                    [key](const olJsonMember &member) { return member.key == QLatin1String(key); });
    return found == members.end() ? nullptr : &*found;
}

QString formatError(const olJsonMember *format)
{
    if (!format)
        return Words::tr("It is no file of preferences: it names no format.");
    const boost::any number = olValue::fromJson("double", format->text());
    if (number.empty() || !(boost::any_cast<double>(number) >= currentFormat))
        return Words::tr("It is no file of preferences: its format is not known.");
    if (boost::any_cast<double>(number) > currentFormat)
        return Words::tr("It was written by a newer version.");
    return {};
}

/// The value of one setting, or the reason why the file does not tell it clearly.
olResult<boost::any> valueOf(const std::vector<olJsonMember> &parts)
{
    const olJsonMember *named = find(parts, "type");
    const olJsonMember *written = find(parts, "value");
    const boost::any type = named && written ? olValue::fromJson("string", named->text()) : boost::any();
    if (type.empty())
        return olFailure{Words::tr("has no type or no value")};
    const auto &name = boost::any_cast<const std::string &>(type);
    if (!olValue::isTypeName(name))
        return olFailure{Words::tr("is of the unknown type \"%1\"").arg(QString::fromStdString(name))};
    boost::any value = olValue::fromJson(name, written->text());
    if (value.empty())
        return olFailure{Words::tr("is not %1, as its type %2 asks for")
                             .arg(QString::fromStdString(olValue::expectation(name)), QString::fromStdString(name))};
    return value;
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

olResult<olPreferencesFile::Contents> olPreferencesFile::fromJson(const QByteArray &text)
{
    const auto faultIn = [](const std::optional<olJsonFault> &fault) {
        return olFailure{Words::tr("Line %1: %2.").arg(fault->line).arg(fault->what)};
    };
    std::vector<olJsonMember> members;
    if (const auto fault = olReadObject({text.constData(), std::size_t(text.size())}, 1, members))
        return faultIn(fault);
    const QString wrongFormat = formatError(find(members, "format"));
    if (!wrongFormat.isEmpty())
        return olFailure{wrongFormat};
    const olJsonMember *listed = find(members, "settings");
    if (!listed)
        return olFailure{Words::tr("It lists no settings.")};
    std::vector<olJsonMember> settings;
    if (const auto fault = olReadObject(listed->value, listed->line, settings))
        return faultIn(fault);

    Contents contents;
    for (const olJsonMember &setting : settings) {
        std::vector<olJsonMember> parts;
        if (setting.value.front() == '{') {
            if (const auto fault = olReadObject(setting.value, setting.line, parts))
                return faultIn(fault);
        }
        const std::string key = setting.key.toStdString();
        const olResult<boost::any> value = valueOf(parts);
        if (value.isOk())
            contents.settings[key] = *value;
        else
            contents.skipped.push_back({key, value.error()});
    }
    return contents;
}

olResult<> olPreferencesFile::write(const QString &file, const olSettingValues &settings)
{
    const QByteArray text = toJson(settings);
    const QFileInfo place(file);
    const auto result = [&file](const QFileDevice &out, bool isWritten) -> olResult<> {
        if (isWritten)
            return {};
        return olFailure{Words::tr("Cannot write the preferences to %1: %2.").arg(file, out.errorString())};
    };
    if (place.exists() && !place.isFile()) {
        QFile out(file);
        return result(out, writeInto(out, text));
    }
    QSaveFile out(file);
    return result(out, writeWhole(out, text));
}

olResult<olPreferencesFile::Contents> olPreferencesFile::read(const QString &file)
{
    QFile in(file);
    const QByteArray text = in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    if (in.error() != QFile::NoError)
        return olFailure{Words::tr("Cannot read the preferences from %1: %2.").arg(file, in.errorString())};
    auto contents = fromJson(text);
    if (!contents.isOk())
        return olFailure{Words::tr("Cannot import %1. %2").arg(file, contents.error())};
    return contents;
}
