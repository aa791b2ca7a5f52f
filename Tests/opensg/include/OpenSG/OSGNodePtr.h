#pragma once

#include <OSGConfig.h>

namespace osg
{

class Node;

struct NullFieldContainerPtr {
};
extern const NullFieldContainerPtr NullFC;

class NodePtr
{
public:
    NodePtr() = default;
    NodePtr(const NullFieldContainerPtr &) {}
    explicit NodePtr(Node &node) : m_node(&node) {}

    bool operator==(const NodePtr &other) const { return m_node == other.m_node; }
    bool operator!=(const NodePtr &other) const { return m_node != other.m_node; }

private:
    Node *m_node = nullptr;
};

} // namespace osg
