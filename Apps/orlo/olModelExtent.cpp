#include "olModelExtent.h"

#include "Exchange/olModelFormat.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olModelExtent)
};

/// Nobody waits for a look.
constexpr qint64 mostBytes = 16 * 1024 * 1024;

/// What a length of one is in the file.
double unitOf(const QByteArray &text)
{
    constexpr double inch = 25.4;
    constexpr double metre = 1000.0;
    if (text.contains("CONVERSION_BASED_UNIT('INCH'"))
        return inch;
    return text.contains("SI_UNIT($,.METRE.)") ? metre : 1.0;
}

/// The three numbers behind a point's name; false where there are fewer.
bool readPoint(const QByteArray &text, int place, std::array<double, 3> &point)
{
    const int list = text.indexOf(",(", place);
    if (list < 0)
        return false;
    const char *number = text.constData() + list + 2;
    for (double &coordinate : point) {
        char *end = nullptr;
        coordinate = std::strtod(number, &end);
        if (end == number || !std::isfinite(coordinate))
            return false;
        number = *end == ',' ? end + 1 : end;
    }
    return true;
}

} // namespace

std::optional<double> olModelExtent(const QString &file)
{
    const olModelFormat *format = olModelFormat::ofFile(file);
    QFile model(file);
    if (!format || qstrcmp(format->optionsType, "STEP") != 0 || !model.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray text = model.read(mostBytes).replace(' ', "").toUpper();
    constexpr double limit = std::numeric_limits<double>::max();
    std::array<double, 3> low{limit, limit, limit};
    std::array<double, 3> high{-limit, -limit, -limit};
    for (int place = text.indexOf("CARTESIAN_POINT("); place >= 0;
         place = text.indexOf("CARTESIAN_POINT(", place + 1)) {
        std::array<double, 3> point{};
        if (!readPoint(text, place, point))
            continue;
        for (std::size_t axis = 0; axis < point.size(); ++axis) {
            low[axis] = std::min(low[axis], point[axis]);
            high[axis] = std::max(high[axis], point[axis]);
        }
    }
    const double extent = std::hypot(high[0] - low[0], high[1] - low[1], high[2] - low[2]);
    return low[0] <= high[0] && extent > 0.0 ? std::optional<double>(extent * unitOf(text)) : std::nullopt;
}

QString olToleranceInWords(double tolerance, double extent)
{
    constexpr double coarse = 0.01;
    constexpr double fine = 0.000002;
    const double share = tolerance / extent;
    const QString size = Words::tr("about %1 % of the model").arg(share * 100.0, 0, 'g', 1);
    if (share >= coarse)
        return Words::tr("%1: coarse, round parts show corners").arg(size);
    return share <= fine ? Words::tr("%1: very fine, the import takes long").arg(size) : size;
}
