#pragma once

#include "Utilities/olExport.h"

#include <QWidget>

#include <limits>

class olNumberField;
class olThumbWheel;

/// A precision wheel: a thumb wheel to drag and a number field beside it. Without a stated bound it has none.
class ORLO_SDK_EXPORT QOLWheelPrec : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum)
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum)
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)

public:
    explicit QOLWheelPrec(QWidget *parent = nullptr);

    /// Bounds of the value, infinite where there is none. A maximum below the minimum counts as the minimum. A value
    /// outside comes in, with valueChanged().
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    void setRange(double minimum, double maximum);
    [[nodiscard]] double minimum() const;
    [[nodiscard]] double maximum() const;

    /// Decimals that values are rounded to; -1, the default, rounds nothing.
    void setDecimals(int decimals);
    [[nodiscard]] int decimals() const;

    /// What one notch adds; with Shift a tenth of it, with Ctrl ten times as much. Until set, ten times the last
    /// decimal, at most 1.
    void setSingleStep(double step);
    [[nodiscard]] double singleStep() const;

    /// Keeps the number exactly, clamped to the bounds and rounded where decimals are set. What is no number is
    /// ignored.
    void setValue(double value);
    [[nodiscard]] double value() const;

Q_SIGNALS:
    void valueChanged(double value);

private:
    void applyStep();
    void turn(double steps);

    olThumbWheel *m_wheel;
    olNumberField *m_field;
    double m_minimum = -std::numeric_limits<double>::infinity();
    double m_maximum = std::numeric_limits<double>::infinity();
    double m_step = 0.0;
    double m_turned = 0.0;
};
