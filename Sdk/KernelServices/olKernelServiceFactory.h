#pragma once

#include "Utilities/olExport.h"

class olImmersiveInteractionService;
class olPreferencesService;

/// Hands out the host's services by their type. They live as long as the host and are never null.
class olKernelServiceFactory
{
public:
    template <class Service> static Service *the();
};

template <> ORLO_SDK_EXPORT olPreferencesService *olKernelServiceFactory::the();
template <> ORLO_SDK_EXPORT olImmersiveInteractionService *olKernelServiceFactory::the();
