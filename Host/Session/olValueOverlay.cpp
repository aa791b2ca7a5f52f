#include "Session/olValueOverlay.h"

#include "KernelServices/olKernelServiceFactory.h"
#include "State/olPreferencesEntry.h"

namespace
{

olPreferencesService &service() { return *olKernelServiceFactory::the<olPreferencesService>(); }

void put(olPreferencesEntry &entry, const olSettingValues &values)
{
    for (const auto &[key, value] : values) {
        if (value.empty())
            entry.removeValue(key);
        else
            entry.setValue(key, value);
    }
}

} // namespace

olValueOverlay::olValueOverlay(olPreferencesEntry &entry, const olSettingValues &values) : m_entry(entry)
{
    // The service also remembers what changed, so it goes back as a whole.
    if (entry.home() == olHome::Service)
        m_service = service();
    for (const auto &value : values)
        m_before[value.first] = entry.value(value.first);
    put(entry, values);
}

olValueOverlay::~olValueOverlay()
{
    if (m_service)
        service() = *m_service;
    else
        put(m_entry, m_before);
}
