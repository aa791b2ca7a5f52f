#pragma once

#include <string>

namespace osg
{
inline namespace standin
{

/// A node of the scene graph. The stand-in knows a node by its name and, for a light, by its kind.
class Node
{
public:
    explicit Node(std::string name) : m_name(std::move(name)) {}

    [[nodiscard]] const std::string &getName() const { return m_name; }

private:
    std::string m_name;
};

} // namespace standin
} // namespace osg
