#pragma once

#include "Utilities/olExport.h"

#include <QWidget>

#include <limits>

class QSlider;
class olNumberField;

/// A slider with a number field beside it, for fractional values: 0 to 1 unless ranged otherwise.
class ORLO_SDK_EXPORT QOLSlider : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double hardMinValue READ minimum WRITE setHardMinValue)
    Q_PROPERTY(double hardMaxValue READ maximum WRITE setHardMaxValue)
    Q_PROPERTY(double minValue READ minValue WRITE setMinValue)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    explicit QOLSlider(QWidget *parent = nullptr);

    /// Sets what can be typed and where the handle goes. A value outside comes in, with valueChanged().
    void setRange(double minimum, double maximum);
    [[nodiscard]] double minimum() const;
    [[nodiscard]] double maximum() const;

    /// Lowest and highest number that can be typed, each on its own. They may come in any order: as long as the highest
    /// lies below the lowest, both are the lowest.
    void setHardMinValue(double minimum);
    void setHardMaxValue(double maximum);

    /// Lowest position of the handle, for a low end that is better typed than hit by chance; at most the maximum, at
    /// least the minimum.
    void setMinValue(double minimum);
    [[nodiscard]] double minValue() const;

    /// What the arrows and the page keys add. Until set, a hundredth and a tenth of the range.
    void setSteps(double single, double page);

    /// Decimals that values are rounded to; -1, the default, rounds nothing.
    void setDecimals(int decimals);
    [[nodiscard]] int decimals() const;

    /// Keeps the number exactly, clamped to the range and rounded where decimals are set. What is no number is ignored.
    void setValue(double value);
    [[nodiscard]] double value() const;

Q_SIGNALS:
    void valueChanged(double value);

private:
    void applyRange();
    void applySteps();
    void showValue();
    void takeEdit(double value);
    void moveHandle(int action);
    [[nodiscard]] double handleTarget(int action) const;
    [[nodiscard]] double valueUnderHandle() const;

    QSlider *m_handle;
    olNumberField *m_field;
    double m_hardMinimum = 0.0;
    double m_hardMaximum = 1.0;
    double m_handleMinimum = -std::numeric_limits<double>::infinity();
    double m_singleStep = 0.0;
    double m_pageStep = 0.0;
};
