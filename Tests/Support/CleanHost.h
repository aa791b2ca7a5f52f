#pragma once

#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesService.h"
#include "State/olHostState.h"
#include "State/olPreferencesRegistry.h"
#include "Utilities/olMessage.h"

/// Leaves record, service and state as they are at the start of a process.
inline void cleanHost()
{
    olMessage &record = olPreferencesRegistry::the().record();
    const olMessage::Entries left = record.entries();
    for (const auto &entry : left)
        record.remove(entry.first);
    olKernelServiceFactory::the<olPreferencesService>()->clear();
    olHostState::the().reset();
}
