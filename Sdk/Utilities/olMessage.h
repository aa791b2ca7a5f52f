#pragma once

#include "Utilities/olExport.h"

#include <boost/any.hpp>

#include <map>
#include <string>

/// Is told every value that is offered to a message, before it is known whether the message takes it.
class ORLO_SDK_EXPORT olMessageObserver
{
public:
    virtual ~olMessageObserver();
    virtual void offered(const std::string &key, const boost::any &value) = 0;
};

/// The host's attribute record: values of any type under text keys, in the order of the keys. Values keep exactly the
/// type they were set with; nothing is ever converted.
class ORLO_SDK_EXPORT olMessage
{
public:
    using Entries = std::map<std::string, boost::any>;

    /// With `flag` true the value replaces what the key holds; with false it is taken only where the key is absent or
    /// empty.
    void set(const std::string &key, const boost::any &value, bool flag = true);

    /// The value itself, not a copy; an empty one where the key is absent. Valid until the key is set or removed.
    [[nodiscard]] const boost::any &get(const std::string &key) const;

    /// Nothing happens where the key is absent.
    void remove(const std::string &key);

    /// Prints the current call stack to the standard error stream.
    static void printBT();

    [[nodiscard]] const Entries &entries() const { return m_entries; }

    /// For the owner of the message. The observer is not owned; null ends it.
    void setObserver(olMessageObserver *observer) { m_observer = observer; }

private:
    Entries m_entries;
    olMessageObserver *m_observer = nullptr;
};
