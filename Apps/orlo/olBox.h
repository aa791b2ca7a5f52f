#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

/// What holds all points that it was given.
class olBox
{
public:
    using Point = std::array<double, 3>;

    void add(const Point &point)
    {
        for (std::size_t axis = 0; axis < point.size(); ++axis) {
            m_low[axis] = std::min(m_low[axis], point[axis]);
            m_high[axis] = std::max(m_high[axis], point[axis]);
        }
    }

    /// From corner to corner; nothing where there is no more than one point.
    [[nodiscard]] std::optional<double> extent() const
    {
        if (m_low[0] > m_high[0])
            return std::nullopt;
        const double diagonal = std::hypot(m_high[0] - m_low[0], m_high[1] - m_low[1], m_high[2] - m_low[2]);
        return diagonal > 0.0 && std::isfinite(diagonal) ? std::optional<double>(diagonal) : std::nullopt;
    }

private:
    static constexpr double limit = std::numeric_limits<double>::max();
    Point m_low{limit, limit, limit};
    Point m_high{-limit, -limit, -limit};
};
