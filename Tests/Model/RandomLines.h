#pragma once

#include "Editing/olPageIndex.h"

#include <QByteArray>

#include <map>
#include <random>
#include <string>
#include <vector>

class olPreferencesEntry;

/// A loaded module, with the types of its settings and the controls of its page.
struct DrivenModule {
    olPreferencesEntry *entry;
    std::string name;
    std::map<std::string, std::string> types; ///< of all its keys
    std::vector<olPageControl> controls;
};

/// Makes up lines of a script, one operation each.
class RandomLines
{
public:
    /// The modules must outlive this.
    RandomLines(unsigned seed, const std::vector<DrivenModule> &modules) : m_random(seed), m_modules(modules) {}

    /// `module` is the one that the line speaks of, null where it speaks of none.
    [[nodiscard]] QByteArray next(const DrivenModule *&module);

    /// A whole number from 0 to `count` - 1.
    [[nodiscard]] int below(int count) { return int(m_random() % unsigned(count)); }

private:
    [[nodiscard]] QByteArray put(const DrivenModule &module, bool anyType);
    [[nodiscard]] QByteArray host();
    [[nodiscard]] QByteArray edit(const DrivenModule &module);
    [[nodiscard]] QByteArray valueFor(const QWidget &control);
    [[nodiscard]] QByteArray json(const std::string &type);
    [[nodiscard]] QByteArray number(bool isWhole);
    [[nodiscard]] QByteArray channel() { return QByteArray::number(below(1024) / 1024.0, 'g', 12); }
    [[nodiscard]] QByteArray text();
    [[nodiscard]] QByteArray list(const std::string &elementType);
    [[nodiscard]] const std::string &keyOf(const DrivenModule &module);

    std::mt19937 m_random;
    const std::vector<DrivenModule> &m_modules;
};
