#include "olSettingsCatalogue.h"

#include "Session/olNumberText.h"
#include "Session/olSettingDescription.h"
#include "State/olListed.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"
#include "State/olValue.h"
#include "olSettingsList.h"

#include <QCoreApplication>
#include <QStringList>

#include <cmath>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olSettingsCatalogue)
};

/// A bar would end the cell of the table, a line feed its row, and a tooltip may be rich text.
QString cell(QString text)
{
    text.replace(QLatin1Char('|'), QLatin1String("\\|")).replace(QLatin1Char('<'), QLatin1String("&lt;"));
    return text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
}

QString number(double value) { return QString::fromStdString(olNumberText(value)); }

QString range(const olSettingDescription &setting)
{
    QString text;
    if (!std::isinf(setting.minimum) && !std::isinf(setting.maximum))
        text = Words::tr("%1 to %2").arg(number(setting.minimum), number(setting.maximum));
    else if (!std::isinf(setting.minimum))
        text = Words::tr("from %1").arg(number(setting.minimum));
    else if (!std::isinf(setting.maximum))
        text = Words::tr("up to %1").arg(number(setting.maximum));
    if (setting.decimals)
        text = Words::tr("%1, %2 decimals").arg(text).arg(*setting.decimals);
    if (!setting.unit.isEmpty())
        text += (text.isEmpty() ? QString() : QStringLiteral(" ")) + setting.unit;
    return text;
}

/// In the language of the catalogue.
QString effect(const QString &name)
{
    if (name == QLatin1String("next import"))
        return Words::tr("next import");
    return name == QLatin1String("next start") ? Words::tr("next start") : Words::tr("now");
}

QString choices(const olSettingDescription &setting)
{
    QStringList texts;
    for (const olSettingChoice &choice : setting.choices)
        texts << QString::fromStdString(olValue::toJson(choice.value)) + QLatin1Char(' ') + choice.text;
    if (setting.isEditable)
        texts << Words::tr("or any text");
    return olListed(texts);
}

std::string row(const olPreferencesEntry &entry, const std::string &key)
{
    const olSettingDescription setting = olSettingDescription::of(entry, key);
    const olOfferedDefault *offered = entry.findDefault(key);
    QStringList place = setting.captions;
    if (!setting.label.isEmpty())
        place << setting.label;
    const QStringList cells{
        QStringLiteral("`%1`").arg(QString::fromStdString(key)),
        QString::fromStdString(setting.type),
        offered ? QStringLiteral("`%1`").arg(QString::fromStdString(olValue::toJson(offered->value))) : QString(),
        setting.choices.empty() ? range(setting) : choices(setting),
        effect(setting.effect),
        place.join(QStringLiteral(" › ")),
        setting.toolTip,
    };
    QString text = QStringLiteral("|");
    for (const QString &one : cells)
        text += QLatin1Char(' ') + cell(one) + QStringLiteral(" |");
    return text.toStdString() + '\n';
}

std::string section(const olPreferencesEntry &entry)
{
    const std::string category = entry.category().toStdString();
    std::string text = "\n## " + (category.empty() ? "" : category + " / ") + entry.name().toStdString() + "\n\n";
    const std::vector<std::string> keys = olSettingsList::keysOf(entry);
    if (keys.empty())
        return text + Words::tr("No settings.").toStdString() + '\n';
    text += '|';
    for (const QString &heading :
         {Words::tr("key"), Words::tr("type"), Words::tr("default"), Words::tr("range or choices"), Words::tr("effect"),
          Words::tr("on the page"), Words::tr("tooltip")})
        text += ' ' + heading.toStdString() + " |";
    text += "\n|---|---|---|---|---|---|---|\n";
    for (const std::string &key : keys)
        text += row(entry, key);
    return text;
}

} // namespace

std::string olSettingsCatalogue()
{
    std::string text =
        Words::tr("# Settings\n"
                  "\n"
                  "All settings of all modules, in the order of registration and of writing, with the defaults of "
                  "the Professional\nedition. Made by `orlo-prefs list --markdown`.\n")
            .toStdString();
    for (const olPreferencesEntry *entry : olPreferencesRegistry::the().entries())
        text += section(*entry);
    return text;
}
