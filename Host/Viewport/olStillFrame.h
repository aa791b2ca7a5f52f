#pragma once

#include <QImage>
#include <QPointF>

#include <vector>

/// A picture without steps at the edges: the mean of many that are each shifted by a fraction of a pixel.
class olStillFrame
{
public:
    /// The radius in pixels over which the samples are spread.
    void start(const QSize &size, double radius);
    void stop() { m_taken = m_wanted = 0; }

    [[nodiscard]] bool isRunning() const { return m_taken < m_wanted; }
    [[nodiscard]] bool isDone() const { return m_wanted > 0 && m_taken == m_wanted; }

    /// From 0 to 1.
    [[nodiscard]] double progress() const { return m_wanted ? double(m_taken) / m_wanted : 0.0; }

    /// By how much the next picture shall be shifted, in pixels.
    [[nodiscard]] QPointF nextShift() const;

    /// Takes the next picture; one of another size ends it all.
    void take(const QImage &picture);

    /// The mean of what was taken so far.
    [[nodiscard]] QImage mean() const;

private:
    QSize m_size;
    double m_radius = 0.0;
    int m_taken = 0;
    int m_wanted = 0;
    std::vector<unsigned short> m_sums;
};
