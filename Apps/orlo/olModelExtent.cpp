#include "olModelExtent.h"

#include "olBox.h"
#include "olIgesExtent.h"

#include "Exchange/olModelFormat.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>

#include <cmath>
#include <cstdlib>

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
bool readPoint(const QByteArray &text, int place, olBox::Point &point)
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

std::optional<double> stepExtent(QFile &model)
{
    const QByteArray text = model.read(mostBytes).replace(' ', "").toUpper();
    olBox box;
    for (int place = text.indexOf("CARTESIAN_POINT("); place >= 0;
         place = text.indexOf("CARTESIAN_POINT(", place + 1)) {
        olBox::Point point{};
        if (readPoint(text, place, point))
            box.add(point);
    }
    const std::optional<double> extent = box.extent();
    return extent ? std::optional<double>(*extent * unitOf(text)) : std::nullopt;
}

} // namespace

std::optional<double> olModelExtent(const QString &file)
{
    const olModelFormat *format = olModelFormat::ofFile(file);
    QFile model(file);
    if (!format || !model.open(QIODevice::ReadOnly))
        return std::nullopt;
    if (qstrcmp(format->optionsType, "STEP") == 0)
        return stepExtent(model);
    return qstrcmp(format->optionsType, "IGES") == 0 ? olIgesExtent(model) : std::nullopt;
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
