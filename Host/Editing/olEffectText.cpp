#include "Editing/olEffectText.h"

#include "Session/olRecordedSettings.h"

olEffectText olEffectText::of(const std::string &key, const QString &effect)
{
    if (olIsOnlyRecorded(key))
        return {tr("only recorded"), tr("Is only recorded by this host"),
                tr("This host only records these settings: no reader or other part of it goes by them.")};
    if (effect == QLatin1String("next import"))
        return {tr("next import"), tr("Takes effect at the next import"),
                tr("These settings take effect at the next import.")};
    if (effect == QLatin1String("next start"))
        return {tr("next start"), tr("Takes effect at the next start"),
                tr("These settings take effect at the next start.")};
    return {};
}
