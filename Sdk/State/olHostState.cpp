#include "State/olHostState.h"

#include "State/olSceneLoaders.h"

olHostState &olHostState::the()
{
    static olHostState state;
    return state;
}

void olHostState::reset()
{
    importRecords.clear();
    olResetSceneLoaders();
    olHostValues::reset();
}

const olImportRecord *olHostState::importRecord(const std::string &type) const
{
    const auto found = importRecords.find(type);
    return found == importRecords.end() ? nullptr : &found->second;
}

void olHostState::refuse(const std::string &key, const QString &reason)
{
    std::map<std::string, QString> all = refusals;
    if (reason.isEmpty())
        all.erase(key);
    else
        all[key] = reason;
    if (all != refusals.get())
        refusals = all;
}
