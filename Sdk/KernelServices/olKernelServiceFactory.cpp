#include "KernelServices/olKernelServiceFactory.h"

#include "KernelServices/olImmersiveInteractionService.h"
#include "KernelServices/olPreferencesService.h"

template <> olPreferencesService *olKernelServiceFactory::the()
{
    static olPreferencesService service;
    return &service;
}

template <> olImmersiveInteractionService *olKernelServiceFactory::the()
{
    static olImmersiveInteractionService service;
    return &service;
}
