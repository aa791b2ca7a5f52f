#pragma once

#include "KernelServices/olPreferencesService.h"
#include "Session/olPreferencesSession.h"

#include <optional>

class olPreferencesEntry;

/// Puts values in place of those in force while it lives. What a module fills its page with meanwhile are these: a
/// filling is the one way to show values that sets off none of a page's questions and runs all of its enabling rules.
class olValueOverlay
{
public:
    /// An empty value makes the key absent.
    olValueOverlay(olPreferencesEntry &entry, const olSettingValues &values);
    ~olValueOverlay();
    olValueOverlay(const olValueOverlay &) = delete;
    olValueOverlay &operator=(const olValueOverlay &) = delete;

private:
    olPreferencesEntry &m_entry;
    olSettingValues m_before;
    std::optional<olPreferencesService> m_service;
};
