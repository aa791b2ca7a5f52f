#pragma once

#include <QString>

#include <limits>
#include <optional>

/// When a new value has its effect, counted from the apply that brings it.
enum class olEffect { Now, NextImport, NextStart };

/// A question that must be agreed to before a value is set by anything but the page's own click.
struct olWarning {
    QString title;
    QString text;
    QString informative;
    QString accept;
    QString reject;
};

/// What there is to know of a setting besides its key, type and default. Bounds and decimals go to the control that it
/// is paired with; a stored value is never held to them.
struct olSettingTraits {
    double lowest = -std::numeric_limits<double>::infinity();
    double highest = std::numeric_limits<double>::infinity();
    std::optional<int> decimals;
    const char *unit = "";
    olEffect effect = olEffect::Now;

    /// Whether it is a part of the whole, which is 1.
    bool isShare = false;

    /// Whether applying the former value again undoes all that applying another one has done.
    bool isPutBack = true;

    /// Whether its control stands as the form has it before the page is first filled, and not at the default.
    bool isFormsAtFirst = false;

    /// The question that goes with the value true; null where there is none. Asked anew each time, in the language of
    /// then.
    olWarning (*warning)() = nullptr;

    [[nodiscard]] olSettingTraits withDecimals(int count) const
    {
        olSettingTraits traits = *this;
        traits.decimals = count;
        return traits;
    }
    [[nodiscard]] olSettingTraits inUnit(const char *name) const
    {
        olSettingTraits traits = *this;
        traits.unit = name;
        return traits;
    }
    [[nodiscard]] olSettingTraits asShare() const
    {
        olSettingTraits traits = *this;
        traits.isShare = true;
        return traits;
    }
    [[nodiscard]] olSettingTraits asFormHasIt() const
    {
        olSettingTraits traits = *this;
        traits.isFormsAtFirst = true;
        return traits;
    }
    [[nodiscard]] olSettingTraits notPutBack() const
    {
        olSettingTraits traits = *this;
        traits.isPutBack = false;
        return traits;
    }
    [[nodiscard]] olSettingTraits effective(olEffect when) const
    {
        olSettingTraits traits = *this;
        traits.effect = when;
        return traits;
    }
};

inline olSettingTraits between(double lowest, double highest)
{
    olSettingTraits traits;
    traits.lowest = lowest;
    traits.highest = highest;
    return traits;
}
inline olSettingTraits atLeast(double lowest) { return between(lowest, std::numeric_limits<double>::infinity()); }
inline olSettingTraits inUnit(const char *unit) { return olSettingTraits().inUnit(unit); }
inline olSettingTraits asShare() { return olSettingTraits().asShare(); }
inline olSettingTraits asFormHasIt() { return olSettingTraits().asFormHasIt(); }
inline olSettingTraits notPutBack() { return olSettingTraits().notPutBack(); }
inline olSettingTraits atNextImport() { return olSettingTraits().effective(olEffect::NextImport); }
inline olSettingTraits atNextStart() { return olSettingTraits().effective(olEffect::NextStart); }
inline olSettingTraits warned(olWarning (*question)())
{
    olSettingTraits traits;
    traits.warning = question;
    return traits;
}
