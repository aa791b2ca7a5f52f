#pragma once

#include "Framework/olControlLimits.h"
#include "Framework/olControlPlace.h"
#include "Framework/olControls.h"
#include "Framework/olRecordStore.h"
#include "Framework/olSetting.h"
#include "Framework/olVariant.h"

#include <QVariant>
#include <QVariantMap>

#include <algorithm>
#include <optional>
#include <type_traits>

/// What a setting tells of itself, apart from its type, and of its control; see olSettingAccess.
[[nodiscard]] QVariantMap describeTraits(const olSettingTraits &traits);
void describeControl(const QWidget &control, QVariantMap &description);

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

    /// What the control holds.
    [[nodiscard]] virtual QVariant value() const { return {}; }

    /// What the setting is; see olSettingAccess. Empty for one that is no more than a key.
    [[nodiscard]] virtual QVariantMap describe() const { return {}; }

    /// How a value reads for a person; empty for one of another type.
    [[nodiscard]] virtual QString text(const QVariant &) const { return {}; }
};

/// A setting that no control shows: defaulted and removed, never shown or taken.
template <class T, class Store = olRecordStore> class olUnshownSetting : public olListedSetting
{
public:
    explicit olUnshownSetting(const olSetting<T> &setting) : m_setting(setting) {}

    [[nodiscard]] const olSetting<T> &setting() const override { return m_setting; }
    void writeDefault(bool flag) const override { Store::writeDefault(m_setting, flag); }
    void forget() const override { Store::forget(m_setting); }

    [[nodiscard]] QVariantMap describe() const override
    {
        QVariantMap description = describeTraits(m_setting.traits());
        description.insert(QLatin1String("type"), typeName(T()));
        if (const auto standard = defaultValue())
            description.insert(QLatin1String("default"), toVariant(*standard));
        return description;
    }

    [[nodiscard]] QString text(const QVariant &variant) const override
    {
        T value{};
        return fromVariant(variant, value) ? textOf(value) : QString();
    }

protected:
    /// Nothing for what is absent by default.
    [[nodiscard]] virtual std::optional<T> defaultValue() const { return m_setting.defaultValue(); }

    [[nodiscard]] virtual QString textOf(const T &value) const
    {
        const QString text = olPlainText::of(value);
        if constexpr (std::is_arithmetic_v<T>)
            return olPlainText::withUnit(text, QString::fromUtf8(m_setting.traits().unit));
        return text;
    }

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
        if constexpr (std::is_same_v<Control, QLineEdit *> && std::is_floating_point_v<T>)
            olControlLimits::acceptNumbers(*control);
        olControlLimits::push(setting.traits(), *widgetOf(control));
        // So that a page that could not be filled does no harm when it is taken back.
        if (!setting.traits().isFormsAtFirst)
            showOn(m_control, setting.defaultValue());
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
    [[nodiscard]] QVariantMap describe() const override
    {
        QVariantMap description = olUnshownSetting<T, Store>::describe();
        describeControl(*widget(), description);
        if constexpr (std::is_same_v<T, bool>)
            description.insert(QLatin1String("inverted"), isInverted(m_control));
        const olChoices<T> known = choices();
        QVariantList list;
        for (const olChoice<T> &choice : known)
            list << QVariantMap{{QLatin1String("value"), toVariant(choice.value)},
                                {QLatin1String("text"), choice.text}};
        if (!list.isEmpty())
            description.insert(QLatin1String("choices"), list);
        return description;
    }

protected:
    /// In the words of the control, where it has some.
    [[nodiscard]] QString textOf(const T &value) const override
    {
        const olChoices<T> known = choices();
        const auto choice = std::find_if(known.begin(), known.end(), [&value](const olChoice<T> &candidate) {
            return isSameValue(candidate.value, value);
        });
        return choice == known.end() ? olUnshownSetting<T, Store>::textOf(value) : choice->text;
    }

    [[nodiscard]] T taken() const
    {
        T value{};
        takeFrom(m_control, value);
        return value;
    }

private:
    [[nodiscard]] olChoices<T> choices() const
    {
        olChoices<T> known;
        tellChoices(m_control, known);
        return known;
    }

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

protected:
    [[nodiscard]] std::optional<List> defaultValue() const override { return std::nullopt; }
};
