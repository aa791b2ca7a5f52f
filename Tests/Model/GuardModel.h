#pragma once

#include "Utilities/olMessage.h"

#include <set>
#include <string>
#include <vector>

/// What the camera, navigator, selection and web interface modules must ask of the host, told from the record and the
/// host's facts alone: a second opinion on their guards, written without any of their code.
class GuardModel
{
public:
    using Calls = std::vector<std::string>;

    /// The library was just loaded: whether the environment forbids the web server is settled now.
    explicit GuardModel(bool isServerForbidden) : m_isServerForbidden(isServerForbidden) {}

    /// Whether the model knows the module of that display name.
    [[nodiscard]] static bool knows(const std::string &module);

    /// The page of a module was taken back: which of its keys hold what they held.
    void taken(const std::string &key, bool isSame);

    /// The host forgot what was reported unchanged of these keys.
    void settled(const std::vector<std::string> &keys);

    /// The calls of the module's next apply.
    [[nodiscard]] Calls apply(const std::string &module, const olMessage &record) const;

private:
    [[nodiscard]] bool changed(const std::string &key) const { return m_unchanged.count(key) == 0; }
    [[nodiscard]] Calls camera(const olMessage &record) const;
    [[nodiscard]] Calls navigator(const olMessage &record) const;
    [[nodiscard]] Calls selection(const olMessage &record) const;
    [[nodiscard]] Calls webInterface(const olMessage &record) const;

    bool m_isServerForbidden;
    std::set<std::string> m_unchanged;
};
