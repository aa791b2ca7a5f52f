#pragma once

#include "Framework/olSettingTraits.h"

#include <optional>

class QLineEdit;
class QWidget;

/// What a control lets a person enter, a colour channel by channel: infinite where it has no bound, nothing where it
/// has no decimals or length of its own.
struct olControlLimits {
    double lowest;
    double highest;
    std::optional<int> decimals;
    std::optional<int> maximumLength;

    [[nodiscard]] static olControlLimits of(const QWidget &control);

    /// Gives the control the bounds and decimals that are declared; those of the form stay where none are.
    static void push(const olSettingTraits &traits, QWidget &control);

    /// Lets a field take numbers of the C locale: what can be typed is what is read. A decimal comma becomes a point.
    static void acceptNumbers(QLineEdit &field);
};
