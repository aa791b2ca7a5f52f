#include "Support/PictureDifference.h"

#include <cstdlib>

double pictureDifference(const QImage &left, const QImage &right)
{
    if (left.size() != right.size() || left.isNull())
        return 1.0;
    constexpr int tolerance = 6;
    int different = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            const QRgb one = left.pixel(x, y);
            const QRgb other = right.pixel(x, y);
            different += std::abs(qRed(one) - qRed(other)) > tolerance ||
                         std::abs(qGreen(one) - qGreen(other)) > tolerance ||
                         std::abs(qBlue(one) - qBlue(other)) > tolerance;
        }
    }
    return double(different) / (left.width() * left.height());
}
