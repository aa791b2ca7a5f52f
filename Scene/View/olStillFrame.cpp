#include "View/olStillFrame.h"

#include <cmath>

namespace
{

/// The turn between samples that fills a disc most evenly.
constexpr double goldenAngle = 2.399963229728653;

} // namespace

void olStillFrame::start(double radius, int pictures, int samples)
{
    m_radius = std::isfinite(radius) && pictures > 1 ? std::abs(radius) : 0.0;
    m_samples = samples;
    m_taken = 0;
    m_wanted = pictures;
}

QPointF olStillFrame::nextShift() const
{
    const double radius = m_radius * std::sqrt((m_taken + 0.5) / m_wanted);
    const double angle = m_taken * goldenAngle;
    return {radius * std::cos(angle), radius * std::sin(angle)};
}
