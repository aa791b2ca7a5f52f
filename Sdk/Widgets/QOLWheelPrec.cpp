#include "Widgets/QOLWheelPrec.h"

#include "Widgets/olInnerParts.h"
#include "Widgets/olNumberField.h"
#include "Widgets/olThumbWheel.h"

#include <QHBoxLayout>

#include <algorithm>
#include <cmath>

QOLWheelPrec::QOLWheelPrec(QWidget *parent)
    : QWidget(parent), m_wheel(new olThumbWheel(this)), m_field(new olNumberField(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_wheel);
    layout->addWidget(m_field, 1);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusProxy(m_field);
    setFocusPolicy(Qt::StrongFocus);

    auto *parts = new olInnerParts(this);
    parts->add(m_wheel);
    parts->add(m_field);
    parts->stepWithWheel(m_field);

    connect(m_wheel, &olThumbWheel::grabbed, this, [this] { m_turned = value(); });
    connect(m_wheel, &olThumbWheel::turned, this, &QOLWheelPrec::turn);
    connect(m_field, &olNumberField::edited, this, &QOLWheelPrec::valueChanged);
}

void QOLWheelPrec::setMinimum(double minimum) { setRange(minimum, m_maximum); }

void QOLWheelPrec::setMaximum(double maximum) { setRange(m_minimum, maximum); }

void QOLWheelPrec::setRange(double minimum, double maximum)
{
    m_minimum = minimum;
    m_maximum = maximum;
    m_field->setRange(minimum, maximum);
    setValue(value());
}

double QOLWheelPrec::minimum() const { return m_field->lowest(); }

double QOLWheelPrec::maximum() const { return m_field->highest(); }

void QOLWheelPrec::setDecimals(int decimals)
{
    m_field->setDecimals(decimals);
    applyStep();
    setValue(value());
}

int QOLWheelPrec::decimals() const { return m_field->decimals(); }

void QOLWheelPrec::setSingleStep(double step)
{
    m_step = step;
    applyStep();
}

double QOLWheelPrec::singleStep() const { return m_field->singleStep(); }

void QOLWheelPrec::setValue(double value)
{
    if (std::isnan(value))
        return;
    const double before = m_field->committed();
    const double fitted = m_field->fitted(value);
    m_field->setValue(fitted);
    if (fitted != before)
        Q_EMIT valueChanged(fitted);
}

double QOLWheelPrec::value() const { return m_field->value(); }

void QOLWheelPrec::applyStep()
{
    const double natural = decimals() > 1 ? std::pow(10.0, 1 - decimals()) : 1.0;
    const double step = m_step > 0.0 ? m_step : natural;
    m_field->setSteps(step, 10.0 * step);
}

void QOLWheelPrec::turn(double steps)
{
    // The sum is kept unrounded, or a slow turn would never reach the next number of a rounded field.
    m_turned = std::clamp(m_turned + steps * singleStep(), minimum(), maximum());
    m_field->edit(olNumberField::withoutNoise(m_turned));
}
