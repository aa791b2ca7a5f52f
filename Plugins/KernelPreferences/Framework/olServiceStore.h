#pragma once

#include "Framework/olSetting.h"
#include "KernelServices/olKernelServiceFactory.h"
#include "KernelServices/olPreferencesService.h"

/// Where a list's settings have their values: in the host's preferences service, which knows three types. Its defaults
/// lie beneath its values and never replace one, and it sees for itself what changed.
struct olServiceStore {
    static void writeDefault(const olSetting<int> &setting, bool)
    {
        service().setDefaultInt(setting.key(), setting.defaultValue());
    }
    static void writeDefault(const olSetting<float> &setting, bool)
    {
        service().setDefaultFloat(setting.key(), setting.defaultValue());
    }
    static void writeDefault(const olSetting<bool> &setting, bool)
    {
        service().setDefaultBool(setting.key(), setting.defaultValue());
    }

    /// The setting's own default stands in for a value that the service does not have.
    static int value(const olSetting<int> &setting) { return service().getInt(setting.key(), setting.defaultValue()); }
    static float value(const olSetting<float> &setting)
    {
        return service().getFloat(setting.key(), setting.defaultValue());
    }
    static bool value(const olSetting<bool> &setting)
    {
        return service().getBool(setting.key(), setting.defaultValue());
    }

    template <class T> static bool read(const olSetting<T> &setting, T &out)
    {
        out = value(setting);
        return true;
    }

    static void write(const olSetting<int> &setting, int value) { service().setInt(setting.key(), value); }
    static void write(const olSetting<float> &setting, float value) { service().setFloat(setting.key(), value); }
    static void write(const olSetting<bool> &setting, bool value) { service().setBool(setting.key(), value); }

    template <class T> static bool writeIfChanged(const olSetting<T> &setting, const T &value)
    {
        write(setting, value);
        return true;
    }

    /// The values stay: they are the service's.
    static void forget(const olSettingBase &) {}

private:
    static olPreferencesService &service() { return *olKernelServiceFactory::the<olPreferencesService>(); }
};
