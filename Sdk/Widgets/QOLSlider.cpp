#include "Widgets/QOLSlider.h"

#include "Widgets/olInnerParts.h"
#include "Widgets/olNumberField.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QSlider>

#include <algorithm>
#include <cmath>

namespace
{

constexpr int handlePositions = 10000;

/// Says the number to a screen reader, not how far along its way the handle is.
class SpokenHandle : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit SpokenHandle(QOLSlider &slider, QWidget *handle)
        : QAccessibleWidget(handle, QAccessible::Slider), m_slider(slider)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QString text(QAccessible::Text what) const override
    {
        return what == QAccessible::Value ? QString::number(m_slider.value()) : QAccessibleWidget::text(what);
    }
    [[nodiscard]] QVariant currentValue() const override { return m_slider.value(); }
    void setCurrentValue(const QVariant &value) override { m_slider.setValue(value.toDouble()); }
    [[nodiscard]] QVariant maximumValue() const override { return m_slider.maximum(); }
    [[nodiscard]] QVariant minimumValue() const override { return m_slider.minimum(); }
    [[nodiscard]] QVariant minimumStepSize() const override { return {}; }

private:
    QOLSlider &m_slider;
};

QAccessibleInterface *spokenHandle(const QString &, QObject *object)
{
    auto *handle = qobject_cast<QSlider *>(object);
    auto *slider = handle ? qobject_cast<QOLSlider *>(handle->parentWidget()) : nullptr;
    return slider ? new SpokenHandle(*slider, handle) : nullptr;
}

} // namespace

QOLSlider::QOLSlider(QWidget *parent)
    : QWidget(parent), m_handle(new QSlider(Qt::Horizontal, this)), m_field(new olNumberField(this))
{
    static const bool isSpoken = (QAccessible::installFactory(spokenHandle), true);
    Q_UNUSED(isSpoken)
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_handle, 1);
    layout->addWidget(m_field);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    m_handle->setRange(0, handlePositions);
    // One stop of the Tab key is enough: the field takes all keys that matter.
    m_handle->setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(m_field);
    setFocusPolicy(Qt::StrongFocus);

    auto *parts = new olInnerParts(this);
    parts->add(m_handle);
    parts->add(m_field);
    parts->stepWithWheel(m_field);

    connect(m_handle, &QSlider::actionTriggered, this, &QOLSlider::moveHandle);
    connect(m_field, &olNumberField::edited, this, &QOLSlider::takeEdit);
    applyRange();
}

void QOLSlider::setRange(double minimum, double maximum)
{
    m_hardMinimum = minimum;
    m_hardMaximum = maximum;
    m_handleMinimum = minimum;
    applyRange();
}

double QOLSlider::minimum() const { return m_field->lowest(); }

double QOLSlider::maximum() const { return m_field->highest(); }

void QOLSlider::setHardMinValue(double minimum)
{
    m_hardMinimum = minimum;
    applyRange();
}

void QOLSlider::setHardMaxValue(double maximum)
{
    m_hardMaximum = maximum;
    applyRange();
}

void QOLSlider::setMinValue(double minimum)
{
    m_handleMinimum = minimum;
    applyRange();
}

double QOLSlider::minValue() const { return std::clamp(m_handleMinimum, minimum(), maximum()); }

void QOLSlider::setSteps(double single, double page)
{
    m_singleStep = single;
    m_pageStep = page;
    applySteps();
}

void QOLSlider::setDecimals(int decimals)
{
    m_field->setDecimals(decimals);
    setValue(value());
}

int QOLSlider::decimals() const { return m_field->decimals(); }

void QOLSlider::setValue(double value)
{
    if (std::isnan(value))
        return;
    const double before = m_field->committed();
    const double fitted = m_field->fitted(value);
    m_field->setValue(fitted);
    showValue();
    if (fitted != before)
        Q_EMIT valueChanged(fitted);
}

double QOLSlider::value() const { return m_field->value(); }

void QOLSlider::applyRange()
{
    m_field->setRange(m_hardMinimum, m_hardMaximum);
    applySteps();
    setValue(value());
}

void QOLSlider::applySteps()
{
    const double difference = maximum() - minimum();
    const double span = std::isfinite(difference) ? difference : 100.0;
    m_field->setSteps(m_singleStep > 0.0 ? m_singleStep : span / 100.0, m_pageStep > 0.0 ? m_pageStep : span / 10.0);
}

void QOLSlider::showValue()
{
    const double low = minValue();
    const double span = maximum() - low;
    const bool measurable = span > 0.0 && std::isfinite(span);
    const double share = measurable ? (std::clamp(value(), low, maximum()) - low) / span : 0.0;
    const QSignalBlocker quiet(m_handle);
    m_handle->setValue(static_cast<int>(std::lround(share * handlePositions)));
}

void QOLSlider::takeEdit(double value)
{
    showValue();
    Q_EMIT valueChanged(value);
}

void QOLSlider::moveHandle(int action)
{
    const double current = value();
    double target = olNumberField::withoutNoise(handleTarget(action));
    const bool down = target < current;
    target = std::clamp(target, minValue(), maximum());
    // A number typed below the handle's lowest position must not rise by a step down.
    m_field->edit(down ? std::min(target, current) : target);
    showValue();
}

double QOLSlider::handleTarget(int action) const
{
    switch (action) {
    case QAbstractSlider::SliderSingleStepAdd:
        return value() + m_field->singleStep();
    case QAbstractSlider::SliderSingleStepSub:
        return value() - m_field->singleStep();
    case QAbstractSlider::SliderPageStepAdd:
        return value() + m_field->pageStep();
    case QAbstractSlider::SliderPageStepSub:
        return value() - m_field->pageStep();
    case QAbstractSlider::SliderToMinimum:
        return minValue();
    case QAbstractSlider::SliderToMaximum:
        return maximum();
    default:
        return valueUnderHandle();
    }
}

double QOLSlider::valueUnderHandle() const
{
    const double span = maximum() - minValue();
    if (!(span > 0.0) || !std::isfinite(span))
        return value();
    // Dragging gives even numbers, about as fine as a hand can place the handle.
    const double finest = std::min(span / 500.0, m_field->singleStep());
    const double grid = std::pow(10.0, std::floor(std::log10(finest)));
    const double exact = minValue() + span * m_handle->sliderPosition() / handlePositions;
    return std::round(exact / grid) * grid;
}
