#pragma once

#include "Framework/olServiceStore.h"
#include "Framework/olSettingList.h"

/// The settings of a module that keeps its values in the host's preferences service: the same walks, another store.
/// Of the operations that take the page back, storeFromPage() is the one to use; no key is ever removed.
class olServiceSettingList : public olSettingList
{
public:
    using olSettingList::olSettingList;

    template <class T, class Control> void add(const olSetting<T> &setting, Control control)
    {
        append(
            std::make_unique<olPairing<T, Control, olNoLiveValue, olServiceStore>>(setting, control, olNoLiveValue{}));
    }
};
