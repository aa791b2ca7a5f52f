#include "Editing/olEffectText.h"

#include "Session/olRecordedSettings.h"

olEffectText olEffectText::of(const std::string &key, const QString &effect)
{
    if (olIsOnlyRecorded(key))
        return {tr("only recorded"), tr("Is only recorded by this host"),
                tr("This host only records these settings: it has no part that goes by them, such as a reader "
                   "for the format.")};
    if (effect == QLatin1String("next import"))
        return {tr("next import"), tr("Takes effect at the next import"),
                tr("These settings take effect at the next import.")};
    if (effect == QLatin1String("next start"))
        return {tr("next start"), tr("Takes effect at the next start"),
                tr("These settings take effect at the next start.")};
    return {};
}
