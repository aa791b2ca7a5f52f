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
