#include "Viewport/olStillFrame.h"

#include <cmath>

namespace
{

constexpr int samples = 16;
constexpr int channels = 4;

/// The turn between samples that fills a disc most evenly.
constexpr double goldenAngle = 2.399963229728653;

} // namespace

void olStillFrame::start(const QSize &size, double radius)
{
    m_size = size;
    m_radius = std::isfinite(radius) ? std::abs(radius) : 0.0;
    m_taken = 0;
    m_wanted = samples;
    m_sums.assign(std::size_t(size.width()) * std::size_t(size.height()) * channels, 0);
}

QPointF olStillFrame::nextShift() const
{
    const double radius = m_radius * std::sqrt((m_taken + 0.5) / samples);
    const double angle = m_taken * goldenAngle;
    return {radius * std::cos(angle), radius * std::sin(angle)};
}

void olStillFrame::take(const QImage &picture)
{
    if (picture.size() != m_size || !isRunning()) {
        stop();
        return;
    }
    const QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
    auto sum = m_sums.begin();
    for (int row = 0; row < m_size.height(); ++row) {
        const uchar *channel = pixels.constScanLine(row);
        const uchar *end = channel + m_size.width() * channels;
        while (channel != end)
            *sum++ += *channel++;
    }
    ++m_taken;
}

QImage olStillFrame::mean() const
{
    if (m_taken == 0)
        return {};
    QImage result(m_size, QImage::Format_RGB32);
    auto sum = m_sums.begin();
    for (int row = 0; row < m_size.height(); ++row) {
        uchar *channel = result.scanLine(row);
        uchar *end = channel + m_size.width() * channels;
        while (channel != end)
            *channel++ = uchar((*sum++ + m_taken / 2) / m_taken);
    }
    return result;
}
