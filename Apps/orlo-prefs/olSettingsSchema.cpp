#include "olSettingsSchema.h"

#include "Session/olSettingDescription.h"
#include "State/olValue.h"
#include "olKnownSettings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextDocument>
#include <QTextDocumentFragment>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

QJsonObject ofType(const char *type) { return {{QStringLiteral("type"), QLatin1String(type)}}; }

QJsonObject listOf(const QJsonObject &items)
{
    return {{QStringLiteral("type"), QStringLiteral("array")}, {QStringLiteral("items"), items}};
}

QJsonObject within(QJsonObject schema, double lowest, double highest)
{
    if (!std::isinf(lowest))
        schema.insert(QStringLiteral("minimum"), lowest);
    if (!std::isinf(highest))
        schema.insert(QStringLiteral("maximum"), highest);
    return schema;
}

QJsonObject colorWithin(double lowest, double highest)
{
    QJsonObject schema = listOf(within(ofType("number"), lowest, highest));
    schema.insert(QStringLiteral("minItems"), 3);
    schema.insert(QStringLiteral("maxItems"), 3);
    return schema;
}

QJsonValue jsonOf(const boost::any &value)
{
    const std::string text = '[' + olValue::toJson(value) + ']';
    return QJsonDocument::fromJson(QByteArray::fromStdString(text)).array().at(0);
}

template <class Whole> QJsonObject wholeNumber(const olSettingDescription &setting)
{
    constexpr auto limits = std::numeric_limits<Whole>();
    return within(ofType("integer"), std::max(setting.minimum, double(limits.min())),
                  std::min(setting.maximum, double(limits.max())));
}

QJsonObject textSchema(const olSettingDescription &setting)
{
    QJsonObject schema = ofType("string");
    if (setting.maximumLength)
        schema.insert(QStringLiteral("maxLength"), *setting.maximumLength);
    return schema;
}

QJsonObject typeSchema(const olSettingDescription &setting)
{
    constexpr double unbounded = std::numeric_limits<double>::infinity();
    const std::string &type = setting.type;
    if (type == "bool")
        return ofType("boolean");
    if (type == "int")
        return wholeNumber<int>(setting);
    if (type == "uint")
        return wholeNumber<unsigned>(setting);
    if (type == "strings")
        return listOf(ofType("string"));
    if (type == "floats")
        return listOf(ofType("number"));
    if (type == "color")
        return colorWithin(setting.minimum, setting.maximum);
    if (type == "colors")
        return listOf(colorWithin(-unbounded, unbounded));
    return type == "qstring" || type == "string" ? textSchema(setting)
                                                 : within(ofType("number"), setting.minimum, setting.maximum);
}

QJsonObject valueSchema(const olKnownSetting &known)
{
    const olSettingDescription setting = olSettingDescription::of(*known.entry, known.key);
    QJsonObject schema = typeSchema(setting);
    if (setting.isChoice()) {
        QJsonArray values;
        for (const olSettingChoice &choice : setting.choices)
            values.append(jsonOf(choice.value));
        // Some stand at none of their choices by default.
        if (!known.standard.empty() && !values.contains(jsonOf(known.standard)))
            values.append(jsonOf(known.standard));
        schema.insert(QStringLiteral("enum"), values);
    }
    if (!known.isOptional)
        schema.insert(QStringLiteral("default"), jsonOf(known.standard));
    if (!setting.label.isEmpty())
        schema.insert(QStringLiteral("title"), setting.label);
    if (!setting.toolTip.isEmpty()) {
        const bool isRich = Qt::mightBeRichText(setting.toolTip);
        schema.insert(QStringLiteral("description"),
                      isRich ? QTextDocumentFragment::fromHtml(setting.toolTip).toPlainText() : setting.toolTip);
    }
    return schema;
}

QJsonObject object(const QJsonObject &properties, const QStringList &required)
{
    QJsonObject schema = ofType("object");
    schema.insert(QStringLiteral("properties"), properties);
    if (!required.isEmpty())
        schema.insert(QStringLiteral("required"), QJsonArray::fromStringList(required));
    return schema;
}

QJsonObject closed(QJsonObject schema)
{
    schema.insert(QStringLiteral("additionalProperties"), false);
    return schema;
}

QJsonObject reference(const QString &name)
{
    return {{QStringLiteral("$ref"), QStringLiteral("#/definitions/") + name}};
}

/// A slash and a tilde mean something else in a reference, and a percent sign and a blank in its address.
QString definitionName(const std::string &key)
{
    QString name;
    for (const QChar letter : QString::fromStdString(key))
        name += letter.isLetterOrNumber() ? letter : QLatin1Char('_');
    return name;
}

QJsonObject constant(const QJsonValue &value) { return {{QStringLiteral("const"), value}}; }

} // namespace

std::string olSettingsSchema()
{
    QJsonObject definitions;
    QJsonObject imported;
    QJsonObject ofSite;
    const olKnownSettings settings;
    for (const olKnownSetting &setting : settings.all()) {
        const QString key = QString::fromStdString(setting.key);
        const QString name = definitionName(setting.key);
        definitions.insert(name, valueSchema(setting));
        imported.insert(key, object({{QStringLiteral("type"), constant(QString::fromStdString(setting.type))},
                                     {QStringLiteral("value"), reference(name)}},
                                    {QStringLiteral("type"), QStringLiteral("value")}));
        QJsonObject entry = closed(object({{QStringLiteral("value"), reference(name)},
                                           {QStringLiteral("locked"), ofType("boolean")},
                                           {QStringLiteral("reason"), ofType("string")}},
                                          {}));
        const QJsonObject hasValue{{QStringLiteral("required"), QJsonArray{QStringLiteral("value")}}};
        const QJsonObject isLocked{
            {QStringLiteral("required"), QJsonArray{QStringLiteral("locked")}},
            {QStringLiteral("properties"), QJsonObject{{QStringLiteral("locked"), constant(true)}}}};
        entry.insert(QStringLiteral("anyOf"), QJsonArray{hasValue, isLocked});
        ofSite.insert(key, entry);
    }
    const QJsonObject file =
        object({{QStringLiteral("format"), constant(1)}, {QStringLiteral("settings"), closed(object(imported, {}))}},
               {QStringLiteral("format"), QStringLiteral("settings")});
    const QJsonObject schema{
        {QStringLiteral("$schema"), QStringLiteral("http://json-schema.org/draft-07/schema#")},
        {QStringLiteral("title"), QStringLiteral("Preferences of ORLO: a file to import, or a site's site.json")},
        {QStringLiteral("oneOf"), QJsonArray{file, closed(object(ofSite, {}))}},
        {QStringLiteral("definitions"), definitions},
    };
    return QJsonDocument(schema).toJson().toStdString();
}
