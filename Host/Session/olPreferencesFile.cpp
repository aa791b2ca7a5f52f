#include "Session/olPreferencesFile.h"

#include "State/olValue.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace
{

constexpr int currentFormat = 1;

QString translated(const char *text) { return QCoreApplication::translate("olPreferencesFile", text); }

olPreferencesFile::Contents failed(const QString &error) { return {{}, {}, error}; }

QString formatError(const QJsonValue &format)
{
    if (format.isUndefined())
        return translated("It is no file of preferences: it names no format.");
    if (!format.isDouble() || format.toDouble() < currentFormat)
        return translated("It is no file of preferences: its format is not known.");
    if (format.toDouble() > currentFormat)
        return translated("It was written by a newer version.");
    return {};
}

/// The value of one setting; empty, with the reason, where the file does not tell it clearly.
boost::any valueOf(const QJsonValue &json, QString &reason)
{
    const QJsonObject setting = json.toObject();
    const std::string type = setting.value(QLatin1String("type")).toString().toStdString();
    if (type.empty() || !setting.contains(QLatin1String("value"))) {
        reason = translated("has no type or no value");
        return {};
    }
    if (!olValue::isTypeName(type)) {
        reason = translated("is of the unknown type \"%1\"").arg(QString::fromStdString(type));
        return {};
    }
    boost::any value = olValue::fromJson(type, setting.value(QLatin1String("value")));
    if (value.empty()) {
        reason = translated("is not %1, as its type %2 asks for")
                     .arg(QString::fromStdString(olValue::expectation(type)), QString::fromStdString(type));
    }
    return value;
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
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(text, &fault);
    if (fault.error != QJsonParseError::NoError) {
        const int line = text.left(fault.offset).count('\n') + 1;
        return failed(translated("It is no JSON, line %1: %2.").arg(line).arg(fault.errorString()));
    }
    const QString wrongFormat = formatError(document.object().value(QLatin1String("format")));
    if (!wrongFormat.isEmpty())
        return failed(wrongFormat);
    const QJsonValue listed = document.object().value(QLatin1String("settings"));
    if (!listed.isObject())
        return failed(translated("It lists no settings."));

    Contents contents;
    const QJsonObject settings = listed.toObject();
    for (auto setting = settings.begin(); setting != settings.end(); ++setting) {
        const std::string key = setting.key().toStdString();
        QString reason;
        const boost::any value = valueOf(setting.value(), reason);
        if (value.empty())
            contents.skipped.push_back({key, reason});
        else
            contents.settings[key] = value;
    }
    return contents;
}

QString olPreferencesFile::write(const QString &file, const olSettingValues &settings)
{
    QSaveFile out(file);
    const QByteArray text = toJson(settings);
    if (out.open(QIODevice::WriteOnly) && out.write(text) == text.size() && out.commit())
        return {};
    return translated("Cannot write the preferences to %1: %2.").arg(file, out.errorString());
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
