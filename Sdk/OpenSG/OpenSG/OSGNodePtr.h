#pragma once

namespace osg
{
inline namespace standin
{

class Node;

/// The null value of every field container pointer.
struct NullFieldContainerPtr {
};
constexpr NullFieldContainerPtr NullFC{};

/// A handle of a node; it does not own the node. It is null when made without one.
class NodePtr
{
public:
    NodePtr() = default;
    NodePtr(NullFieldContainerPtr) {} // NOLINT(google-explicit-constructor): assigned and returned like a value
    explicit NodePtr(Node &node) : m_node(&node) {}

    Node *operator->() const { return m_node; }

    bool operator==(const NodePtr &other) const { return m_node == other.m_node; }
    bool operator!=(const NodePtr &other) const { return m_node != other.m_node; }

private:
    Node *m_node = nullptr;
};

} // namespace standin
} // namespace osg
