#pragma once

#include "State/olHostState.h"
#include "State/olJournal.h"

/// The calls of one of the host's interfaces that do no more than set a value of its state.
class olHostCalls
{
public:
    explicit constexpr olHostCalls(const char *interface) : m_interface(interface) {}

    /// Tells the journal of the call, and sets the value to its argument.
    template <class Value, class Argument>
    void set(const char *function, Value olHostState::*value, const Argument &argument) const
    {
        olJournal::callOf(m_interface, function, argument);
        olHostState::the().*value = argument;
    }

private:
    const char *m_interface;
};
