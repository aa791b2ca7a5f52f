#pragma once

#include <cstddef>

/// Counts the calls of operator new, of all libraries, from its construction on.
class Allocations
{
public:
    Allocations() : m_before(total()) {}

    [[nodiscard]] std::size_t count() const { return total() - m_before; }

private:
    static std::size_t total();

    std::size_t m_before;
};

/// Bytes that the process holds on the heap, whoever asked for them.
std::size_t heapInUse();
