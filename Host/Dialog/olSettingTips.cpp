#include "Dialog/olSettingTips.h"

#include "Editing/olValueText.h"
#include "Session/olNumberText.h"
#include "Session/olPreferencesSession.h"
#include "State/olListed.h"

#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWidget>

#include <limits>

namespace
{

QString number(double value) { return QString::fromStdString(olNumberText(value)); }

/// Empty where any number of the type can be set, and it counts nothing in particular.
QString rangeText(const olSettingDescription &setting)
{
    const bool hasLeast = setting.minimum > std::numeric_limits<int>::min();
    const bool hasMost = setting.maximum < std::numeric_limits<int>::max();
    const QString least = number(setting.minimum);
    const QString most = number(setting.maximum);
    const QString range = hasLeast && hasMost ? olSettingTips::tr("Range: %1 to %2").arg(least, most)
                          : hasLeast          ? olSettingTips::tr("Range: from %1").arg(least)
                          : hasMost           ? olSettingTips::tr("Range: up to %1").arg(most)
                                              : QString();
    if (range.isEmpty() && !setting.unit.isEmpty())
        return olSettingTips::tr("Unit: %1").arg(setting.unit);
    return setting.unit == QStringLiteral("°") ? range + setting.unit
                                               : (range + QLatin1Char(' ') + setting.unit).trimmed();
}

QString effectText(const QString &effect)
{
    if (effect == QLatin1String("next import"))
        return olSettingTips::tr("Takes effect at the next import");
    return effect == QLatin1String("next start") ? olSettingTips::tr("Takes effect at the next start")
                                                 : olSettingTips::tr("Takes effect at once");
}

/// As rich text, so that a long one has more lines than one.
QString richText(const QString &tip)
{
    return Qt::mightBeRichText(tip) ? tip : tip.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

} // namespace

void olSettingTips::addTo(const std::vector<olFoundControl> &controls)
{
    const auto add = [this](QWidget *widget, const olFoundControl &control) {
        if (!widget || m_controls.contains(widget))
            return;
        m_controls.insert(widget, control);
        widget->installEventFilter(this);
        connect(widget, &QObject::destroyed, this, [this](const QObject *gone) { m_controls.remove(gone); });
    };
    for (const olFoundControl &control : controls) {
        if (control.keys.isEmpty() || !control.widget)
            continue;
        add(control.widget, control);
        for (const auto &label : control.labels)
            add(label, control);
    }
}

bool olSettingTips::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !m_controls.contains(watched))
        return false;
    auto *widget = static_cast<QWidget *>(watched);
    const auto &asked = static_cast<const QHelpEvent &>(*event);
    // What lies in a group box is no part of the setting that its title switches.
    if (watched->inherits("QGroupBox") && asked.pos().y() > widget->fontMetrics().height())
        return false;
    const olFoundControl &control = m_controls[watched];
    const QString own = widget->toolTip().isEmpty() && control.widget ? control.widget->toolTip() : widget->toolTip();
    QStringList lines = facts(control);
    for (QString &line : lines)
        line = line.toHtmlEscaped();
    const QString told = QStringLiteral("<p>%1</p>").arg(lines.join(QStringLiteral("<br>")));
    QToolTip::showText(asked.globalPos(), richText(own) + told, widget);
    return true;
}

QStringList olSettingTips::facts(const olFoundControl &control) const
{
    const std::string first = control.keys.first().toStdString();
    const olSettingDescription setting = olPreferencesSession::description(first);
    QStringList defaults;
    for (const QString &key : control.keys)
        defaults << olShortValueText(key.toStdString(), m_session.defaultValue(key.toStdString()));
    QStringList lines{rangeText(setting), tr("Default: %1").arg(olListed(defaults)), effectText(setting.effect)};
    lines.removeAll({});
    return lines;
}
