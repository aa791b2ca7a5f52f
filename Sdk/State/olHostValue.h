#pragma once

#include "Utilities/olExport.h"

#include <boost/any.hpp>

#include <utility>
#include <vector>

class olHostValues;

/// One value of the host's state, under a name and whatever its type.
class ORLO_SDK_EXPORT olHostValueBase
{
public:
    /// What a value is: set by calls, and something in the host goes by it; set by calls and only recorded; or a fact
    /// that the host is asked for, which can also be set from outside.
    enum class Kind { Used, Recorded, Fact };

    olHostValueBase(olHostValues &owner, const char *name, Kind kind);
    virtual ~olHostValueBase();
    olHostValueBase(const olHostValueBase &) = delete;
    olHostValueBase &operator=(const olHostValueBase &) = delete;

    [[nodiscard]] const char *name() const { return m_name; }
    [[nodiscard]] bool isFact() const { return m_kind == Kind::Fact; }
    [[nodiscard]] bool isRecordedOnly() const { return m_kind == Kind::Recorded; }

    [[nodiscard]] virtual boost::any any() const = 0;

    /// Takes a value of exactly its own type; false for any other.
    virtual bool setAny(const boost::any &value) = 0;

    virtual void reset() = 0;

protected:
    void changed();

private:
    olHostValues &m_owner;
    const char *m_name;
    Kind m_kind;
};

/// Told whenever a value of the host's state is set, also to what it was: a call made twice is told twice. Every call
/// is told before it returns, to all observers in the order in which they were added.
class ORLO_SDK_EXPORT olHostObserver
{
public:
    virtual ~olHostObserver();
    virtual void stateChanged(const olHostValueBase &value) = 0;
};

/// A group of values that knows its members in the order of their declaration.
class ORLO_SDK_EXPORT olHostValues
{
public:
    [[nodiscard]] const std::vector<olHostValueBase *> &values() const { return m_values; }

    /// Null where no value bears the name.
    [[nodiscard]] olHostValueBase *find(const char *name) const;

    /// Back to what every value was at first.
    void reset();

    /// The observer is not owned and must be removed before it goes. Both may happen while observers are being told.
    void addObserver(olHostObserver &observer);
    void removeObserver(olHostObserver &observer);

private:
    friend class olHostValueBase;
    void tell(const olHostValueBase &value);

    std::vector<olHostValueBase *> m_values;
    std::vector<olHostObserver *> m_observers; ///< null where one left while they were being told
    int m_telling = 0;
};

/// A value that calls set and nothing acts on: neither the view nor the importers, the devices or the window can do
/// what it asks for. It can be shown, but it cannot be read as what it is; so what is called only recorded here is.
template <class T> class olRecordedValue : public olHostValueBase
{
public:
    olRecordedValue(olHostValues &owner, const char *name, T initial)
        : olRecordedValue(owner, name, std::move(initial), Kind::Recorded)
    {
    }

    olRecordedValue &operator=(const T &value)
    {
        m_value = value;
        changed();
        return *this;
    }

    [[nodiscard]] boost::any any() const override { return m_value; }
    bool setAny(const boost::any &value) override
    {
        const T *typed = boost::any_cast<T>(&value);
        if (typed)
            *this = *typed;
        return typed != nullptr;
    }
    void reset() override { *this = m_initial; }

protected:
    olRecordedValue(olHostValues &owner, const char *name, T initial, Kind kind)
        : olHostValueBase(owner, name, kind), m_initial(std::move(initial)), m_value(m_initial)
    {
    }

    [[nodiscard]] const T &value() const { return m_value; }

private:
    T m_initial;
    T m_value;
};

/// A value of the host's state: reads like a plain variable, and tells its observers when it is set.
template <class T> class olHostValue : public olRecordedValue<T>
{
public:
    olHostValue(olHostValues &owner, const char *name, T initial,
                olHostValueBase::Kind kind = olHostValueBase::Kind::Used)
        : olRecordedValue<T>(owner, name, std::move(initial), kind)
    {
    }

    using olRecordedValue<T>::operator=;

    operator const T &() const { return this->value(); } // NOLINT(google-explicit-constructor): reads like a variable
    [[nodiscard]] const T &get() const { return this->value(); }
};
