#pragma once

#include "Framework/olControls.h"
#include "Framework/olRecordStore.h"
#include "Framework/olSetting.h"
#include "Framework/olVariant.h"

#include <QVariant>

/// A setting in a module's list, whatever its type and control. It has the declaration for its own, as some are members
/// of a module and gone before its list.
class olListedSetting
{
public:
    olListedSetting() = default;
    virtual ~olListedSetting() = default;
    olListedSetting(const olListedSetting &) = delete;
    olListedSetting &operator=(const olListedSetting &) = delete;

    [[nodiscard]] virtual const olSettingBase &setting() const = 0;
    [[nodiscard]] const std::string &key() const { return setting().key(); }

    virtual void writeDefault(bool flag) const = 0;

    /// Takes the value out of the store, at the end of the module.
    virtual void forget() const = 0;

    /// The control; null for a setting without one. The rest is not to be called without one.
    [[nodiscard]] virtual QWidget *widget() const { return nullptr; }

    /// Store to control. What cannot be read leaves the control as it is, or shows the live value if there is one.
    virtual void show() const {}

    /// Control to store; false where the store held that value already.
    [[nodiscard]] virtual bool takeIfChanged() const { return true; }
    virtual void take() const {}

    /// The control alone.
    [[nodiscard]] virtual QVariant value() const { return {}; }
    [[nodiscard]] virtual bool setValue(const QVariant &) const { return false; }
};

/// A setting that no control shows: defaulted and removed, never shown or taken.
template <class T, class Store = olRecordStore> class olUnshownSetting : public olListedSetting
{
public:
    explicit olUnshownSetting(const olSetting<T> &setting) : m_setting(setting) {}

    [[nodiscard]] const olSetting<T> &setting() const override { return m_setting; }
    void writeDefault(bool flag) const override { Store::writeDefault(m_setting, flag); }
    void forget() const override { Store::forget(m_setting); }

private:
    const olSetting<T> m_setting;
};

/// A key of former times, which the module still sweeps from the record.
class olRetiredSetting : public olListedSetting
{
public:
    explicit olRetiredSetting(std::string key) : m_retired(std::move(key)) {}

    [[nodiscard]] const olSettingBase &setting() const override { return m_retired; }
    void writeDefault(bool) const override {}
    void forget() const override { olRecordStore::forget(m_retired); }

private:
    olSettingBase m_retired;
};

/// The live value of a setting that has none.
struct olNoLiveValue {
};

/// A setting paired with its control, and with the host's live value to show while the store has none.
template <class T, class Control, class Live, class Store = olRecordStore>
class olPairing : public olUnshownSetting<T, Store>
{
public:
    olPairing(const olSetting<T> &setting, Control control, Live live)
        : olUnshownSetting<T, Store>(setting), m_control(control), m_live(live)
    {
    }

    [[nodiscard]] QWidget *widget() const override { return widgetOf(m_control); }

    void show() const override
    {
        T value{};
        if (Store::read(this->setting(), value))
            showOn(m_control, value);
        else
            showLive();
    }
    [[nodiscard]] bool takeIfChanged() const override { return Store::writeIfChanged(this->setting(), taken()); }
    void take() const override { Store::write(this->setting(), taken()); }

    [[nodiscard]] QVariant value() const override { return toVariant(taken()); }
    [[nodiscard]] bool setValue(const QVariant &variant) const override
    {
        T value{};
        if (!fromVariant(variant, value))
            return false;
        showOn(m_control, value);
        return true;
    }

protected:
    [[nodiscard]] T taken() const
    {
        T value{};
        takeFrom(m_control, value);
        return value;
    }

private:
    void showLive() const
    {
        if constexpr (!std::is_same_v<Live, olNoLiveValue>)
            showOn(m_control, static_cast<T>(m_live()));
    }

    Control m_control;
    Live m_live;
};

/// A list that the record holds only while it has elements: it has no default, and its key goes when it is empty.
/// While the record has none of its type, the page shows an empty list.
template <class List, class Control> class olOptionalList : public olPairing<List, Control, List (*)()>
{
public:
    olOptionalList(const olSetting<List> &setting, Control control)
        : olPairing<List, Control, List (*)()>(setting, control, [] { return List(); })
    {
    }

    void writeDefault(bool) const override {}

    [[nodiscard]] bool takeIfChanged() const override
    {
        const List list = this->taken();
        return list.empty() ? olRecordStore::remove(this->setting())
                            : olRecordStore::writeIfChanged(this->setting(), list);
    }
    void take() const override { (void)takeIfChanged(); }
};
