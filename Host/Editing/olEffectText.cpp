#include "Editing/olEffectText.h"

#include "Session/olRecordedSettings.h"

#include <QCoreApplication>

olEffectText olEffectText::of(const std::string &key, const QString &effect)
{
    if (olIsOnlyRecorded(key))
        return {QCoreApplication::translate("olEffectText", "only recorded"),
                QCoreApplication::translate("olEffectText", "Is only recorded by this host"),
                QCoreApplication::translate(
                    "olEffectText",
                    "This host only records these settings: it has no part that goes by them, such as a reader "
                    "for the format.")};
    if (effect == QLatin1String("next import"))
        return {QCoreApplication::translate("olEffectText", "next import"),
                QCoreApplication::translate("olEffectText", "Takes effect at the next import"),
                QCoreApplication::translate("olEffectText", "These settings take effect at the next import.")};
    if (effect == QLatin1String("next start"))
        return {QCoreApplication::translate("olEffectText", "next start"),
                QCoreApplication::translate("olEffectText", "Takes effect at the next start"),
                QCoreApplication::translate("olEffectText", "These settings take effect at the next start.")};
    return {};
}
