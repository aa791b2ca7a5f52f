#pragma once

#include <QPointF>

/// How a picture without steps at the edges comes about: from many that are each shifted by a fraction of a pixel.
class olStillFrame
{
public:
    /// The radius in pixels over which so many pictures are spread, in each of which the graphics card takes so many
    /// samples a pixel.
    void start(double radius, int pictures, int samples);
    void stop() { m_taken = m_wanted = 0; }

    [[nodiscard]] bool isRunning() const { return m_taken < m_wanted; }
    [[nodiscard]] bool isDone() const { return m_wanted > 0 && m_taken == m_wanted; }
    [[nodiscard]] int taken() const { return m_taken; }
    [[nodiscard]] int samples() const { return m_samples; }

    /// Whether it has but one sample of each pixel, so that its edges have steps.
    [[nodiscard]] bool hasSteps() const { return m_wanted == 1 && m_samples == 1; }

    /// From 0 to 1.
    [[nodiscard]] double progress() const { return m_wanted ? double(m_taken) / m_wanted : 0.0; }

    /// By how much the next picture shall be shifted, in pixels.
    [[nodiscard]] QPointF nextShift() const;

    /// The next picture was taken.
    void advance() { ++m_taken; }

private:
    double m_radius = 0.0;
    int m_taken = 0;
    int m_wanted = 0;
    int m_samples = 1;
};
