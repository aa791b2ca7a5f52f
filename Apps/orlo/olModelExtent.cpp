#include "olModelExtent.h"

#include "Exchange/olModelFormat.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QList>
#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olModelExtent)
};

/// Nobody waits for a look.
constexpr qint64 mostBytes = 16 * 1024 * 1024;

constexpr double inch = 25.4;
constexpr double metre = 1000.0;

using Point = std::array<double, 3>;

/// What holds all points that it was given.
class Box
{
public:
    void add(const Point &point)
    {
        for (std::size_t axis = 0; axis < point.size(); ++axis) {
            m_low[axis] = std::min(m_low[axis], point[axis]);
            m_high[axis] = std::max(m_high[axis], point[axis]);
        }
    }
    void add(const Box &other)
    {
        if (other.isEmpty())
            return;
        add(other.m_low);
        add(other.m_high);
    }
    [[nodiscard]] bool isEmpty() const { return m_low[0] > m_high[0]; }

    /// In millimetres, where a length of one is `unit`; nothing where there is none.
    [[nodiscard]] std::optional<double> extent(double unit) const
    {
        if (isEmpty())
            return std::nullopt;
        const double diagonal = std::hypot(m_high[0] - m_low[0], m_high[1] - m_low[1], m_high[2] - m_low[2]) * unit;
        return diagonal > 0.0 ? std::optional<double>(diagonal) : std::nullopt;
    }

private:
    static constexpr double limit = std::numeric_limits<double>::max();
    Point m_low{limit, limit, limit};
    Point m_high{-limit, -limit, -limit};
};

/// What a length of one is in a STEP file.
double stepUnit(const QByteArray &text)
{
    if (text.contains("CONVERSION_BASED_UNIT('INCH'"))
        return inch;
    return text.contains("SI_UNIT($,.METRE.)") ? metre : 1.0;
}

/// The three numbers behind a point's name; false where there are fewer.
bool readPoint(const QByteArray &text, int place, Point &point)
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

std::optional<double> stepExtent(QFile &file)
{
    const QByteArray text = file.read(mostBytes).replace(' ', "").toUpper();
    Box box;
    for (int place = text.indexOf("CARTESIAN_POINT("); place >= 0;
         place = text.indexOf("CARTESIAN_POINT(", place + 1)) {
        Point point{};
        if (readPoint(text, place, point))
            box.add(point);
    }
    return box.extent(stepUnit(text));
}

/// The fields of one record. A text stands as its length, an H and itself.
QList<QByteArray> igesFields(const QByteArray &record)
{
    QList<QByteArray> fields;
    int begin = 0;
    for (int place = 0; place < record.size(); ++place) {
        const char letter = record.at(place);
        if (letter == 'H')
            place += std::max(record.mid(begin, place - begin).trimmed().toInt(), 0);
        if (letter != ',' && letter != ';')
            continue;
        fields << record.mid(begin, place - begin).trimmed();
        begin = place + 1;
        if (letter == ';')
            break;
    }
    return fields;
}

/// What a length of one is, by the number of its unit; nothing where the number stands for a name.
std::optional<double> igesUnit(const QByteArray &number)
{
    switch (number.isEmpty() ? 1 : number.toInt()) {
    case 1:
        return inch;
    case 2:
        return 1.0;
    case 4:
        return 12 * inch;
    case 6:
        return metre;
    case 10:
        return 10.0;
    default:
        return std::nullopt;
    }
}

/// The points of an IGES file, entity by entity, without the curves that lie in the parameters of a surface.
class IgesPoints
{
public:
    void add(int entity, const QList<QByteArray> &fields)
    {
        constexpr int composite = 102, line = 110, point = 116, curve = 126, surface = 128, onSurface = 142,
                      vertices = 502;
        const auto whole = [&fields](int at) { return std::clamp(fields.value(at).toInt(), 0, 1 << 20); };
        switch (whole(0)) {
        case composite:
            for (int at = 2; at < fields.size(); ++at)
                m_parts[entity].insert(fields.at(at).toInt());
            break;
        case onSurface:
            m_flat.insert(whole(3));
            break;
        case line:
            take(entity, fields, 1, 2);
            break;
        case point:
            take(entity, fields, 1, 1);
            break;
        case vertices:
            take(entity, fields, 2, whole(1));
            break;
        case curve:
            take(entity, fields, 7 + whole(1) + whole(2) + 2 + whole(1) + 1, whole(1) + 1);
            break;
        case surface: {
            const int poles = int(std::min((whole(1) + 1) * qint64(whole(2) + 1), qint64(1 << 20)));
            take(entity, fields, 10 + whole(1) + whole(3) + 2 + whole(2) + whole(4) + 2 + poles, poles);
            break;
        }
        default:
            break;
        }
    }

    [[nodiscard]] Box box() const
    {
        QSet<int> flat = m_flat;
        for (const int curve : m_flat)
            flat.unite(m_parts.value(curve));
        Box all;
        for (auto box = m_boxes.begin(); box != m_boxes.end(); ++box) {
            if (!flat.contains(box.key()))
                all.add(box.value());
        }
        return all;
    }

private:
    void take(int entity, const QList<QByteArray> &fields, int first, int count)
    {
        for (int at = first; count > 0 && at + 2 < fields.size(); at += 3, --count) {
            Point point{};
            bool isPoint = true;
            for (int axis = 0; axis < 3 && isPoint; ++axis)
                point[std::size_t(axis)] = QByteArray(fields.at(at + axis)).replace('D', 'E').toDouble(&isPoint);
            if (isPoint && std::all_of(point.begin(), point.end(), [](double number) { return std::isfinite(number); }))
                m_boxes[entity].add(point);
        }
    }

    QHash<int, Box> m_boxes;
    QHash<int, QSet<int>> m_parts;
    QSet<int> m_flat;
};

std::optional<double> igesExtent(QFile &file)
{
    constexpr int sectionAt = 72;
    constexpr int ownerAt = 64;
    QByteArray global;
    QByteArray record;
    int entity = 0;
    IgesPoints points;
    while (!file.atEnd() && file.pos() < mostBytes) {
        const QByteArray line = file.readLine();
        const char section = line.size() > sectionAt ? line.at(sectionAt) : ' ';
        if (section == 'G')
            global += line.left(sectionAt);
        if (section != 'P')
            continue;
        const int owner = line.mid(ownerAt, sectionAt - ownerAt).trimmed().toInt();
        if (owner != entity)
            points.add(entity, igesFields(std::exchange(record, QByteArray())));
        entity = owner;
        record += line.left(ownerAt);
    }
    points.add(entity, igesFields(record));
    // Other signs between the fields than the usual ones are not worth the look.
    constexpr int unitAt = 13;
    const QList<QByteArray> facts = igesFields(global);
    const std::optional<double> unit = facts.size() > unitAt ? igesUnit(facts.at(unitAt)) : std::nullopt;
    return unit ? points.box().extent(*unit) : std::nullopt;
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
    return qstrcmp(format->optionsType, "IGES") == 0 ? igesExtent(model) : std::nullopt;
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
