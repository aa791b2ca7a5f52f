#pragma once

#include "Framework/olPairing.h"
#include "Framework/olServiceStore.h"

#include <functional>
#include <initializer_list>
#include <memory>
#include <set>
#include <string>
#include <vector>

class QObject;
class olSettingAccess;

/// The settings of one module paired with the controls of its page, in the order in which the module writes its
/// defaults. The operations of a module are walks over this list; where one must keep another order, it names it.
class olSettingList
{
public:
    /// Settings in another order than the list's, or some of them. One that the list has not is a mistake of the
    /// module's and ends the process.
    using Order = std::initializer_list<const olSettingBase *>;

    /// Told the key of a setting that did not change.
    using Unchanged = std::function<void(const std::string &key)>;

    /// Lets the host reach single settings through the module (see olSettingAccess). The controls must outlive
    /// the list.
    explicit olSettingList(QObject &module);
    ~olSettingList();
    olSettingList(const olSettingList &) = delete;
    olSettingList &operator=(const olSettingList &) = delete;

    /// From here on the host reaches the settings through the page.
    void tellOn(QObject &page);

    template <class T, class Control> void add(const olSetting<T> &setting, Control control)
    {
        add(setting, control, olNoLiveValue{});
    }

    template <class T, class Control> void add(const olServiceSetting<T> &setting, Control control)
    {
        append(
            std::make_unique<olPairing<T, Control, olNoLiveValue, olServiceStore>>(setting, control, olNoLiveValue{}));
    }

    /// With the host's live value, asked and shown while the record has none.
    template <class T, class Control, class Live> void add(const olSetting<T> &setting, Control control, Live live)
    {
        append(std::make_unique<olPairing<T, Control, Live>>(setting, control, live));
    }

    /// A setting that the page does not show: defaulted and removed.
    template <class T> void addWithoutControl(const olSetting<T> &setting)
    {
        append(std::make_unique<olUnshownSetting<T>>(setting));
    }

    /// A list without a default, which the record holds only while it has elements.
    template <class List, class Control> void addOptionalList(const olSetting<List> &setting, Control control)
    {
        append(std::make_unique<olOptionalList<List, Control>>(setting, control));
    }

    /// A setting without a control whose default several modules write. Its key stays at teardown, unless this module
    /// owns it.
    template <class T> void addShared(const olSetting<T> &setting)
    {
        addWithoutControl(setting);
        m_foreign.insert(setting.key());
    }

    /// Makes this module the one that removes a shared setting.
    void own(const olSettingBase &shared);

    /// A key of former times: never written, removed at its place among the others.
    void addRetired(std::string key) { append(std::make_unique<olRetiredSetting>(std::move(key))); }

    void writeDefaults(bool flag) const;

    void showOnPage() const;
    void showOnPage(Order order) const;

    /// Stores what the controls hold and reports what did not change.
    void takeFromPage(const Unchanged &unchanged) const;

    /// Stores what the controls hold whether it changed or not, and reports nothing.
    void storeFromPage() const;
    void storeFromPage(Order order) const;

    void removeKeys() const;

    /// From here on the host may try the settings out before they are confirmed: for a module whose settings change
    /// nothing but what the view shows.
    void touchOnlyTheView() { m_touchesOnlyTheView = true; }

    /// From here on no setting has a question to be asked first: for a module whose page asks none.
    void askNothing() { m_asks = false; }

    [[nodiscard]] QVariantMap describe(const olListedSetting &setting) const;

    template <class Visit> void each(Visit &&visit) const
    {
        for (const auto &setting : m_settings)
            visit(*setting);
    }

    /// Null where no setting of the list bears the key.
    [[nodiscard]] const olListedSetting *find(const std::string &key) const;

private:
    void append(std::unique_ptr<olListedSetting> setting);
    [[nodiscard]] const olListedSetting &listed(const olSettingBase &setting) const;

    std::vector<std::unique_ptr<olListedSetting>> m_settings;
    std::set<std::string> m_foreign;
    std::unique_ptr<olSettingAccess> m_access;
    bool m_asks = true;
    bool m_touchesOnlyTheView = false;
};
