#pragma once

#include "Framework/olSetting.h"
#include "Framework/olTypedAccess.h"
#include "Kernel/olPreferences.h"

/// Where a list's settings have their values: in the record that all modules share.
struct olRecordStore {
    template <class T> static void writeDefault(const olSetting<T> &setting, bool flag)
    {
        record().set(setting.key(), boost::any(setting.defaultValue()), flag);
    }

    template <class T> static bool read(const olSetting<T> &setting, T &value)
    {
        return getFromMessage(record(), setting.key(), value);
    }

    template <class T> static void write(const olSetting<T> &setting, const T &value)
    {
        record().set(setting.key(), boost::any(value), true);
    }

    /// False where the record held that value already.
    template <class T> static bool writeIfChanged(const olSetting<T> &setting, const T &value)
    {
        return setIfChanged(record(), setting.key(), value, true);
    }

    /// False where the record had none.
    static bool remove(const olSettingBase &setting)
    {
        const bool wasThere = !record().get(setting.key()).empty();
        record().remove(setting.key());
        return wasThere;
    }

    /// At the end of the module.
    static void forget(const olSettingBase &setting) { record().remove(setting.key()); }

private:
    static olMessage &record() { return olPreferences::getData(); }
};
