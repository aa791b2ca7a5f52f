#include "olIgesExtent.h"

#include "olBox.h"

#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QList>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace
{

/// Nobody waits for a look.
constexpr qint64 mostBytes = 64 * 1024 * 1024;

enum Kind {
    Arc = 100,
    Composite = 102,
    Plane = 108,
    Line = 110,
    Point = 116,
    Transformation = 124,
    Curve = 126,
    Surface = 128,
    OffsetSurface = 140,
    Boundary = 141,
    CurveOnSurface = 142,
    BoundedSurface = 143,
    TrimmedSurface = 144,
    Block = 150, // the first of the solids without faces
    Solid = 186,
    Subfigure = 308,
    Group = 402,
    Vertices = 502,
    Edges = 504,
    Face = 510,
    Shell = 514,
};

struct Entity {
    int kind = 0;
    int transformation = 0; ///< the entity that moves it, or 0
    bool isOnItsOwn = false;
    QByteArray record;
};

/// The fields of one record. A text stands as its length, an H and itself.
QList<QByteArray> fieldsOf(const QByteArray &record)
{
    QList<QByteArray> fields;
    int begin = 0;
    for (int place = 0; place < record.size(); ++place) {
        const char letter = record.at(place);
        if (letter == 'H')
            place += std::clamp(record.mid(begin, place - begin).trimmed().toInt(), 0, record.size() - place);
        if (letter != ',' && letter != ';')
            continue;
        fields << record.mid(begin, place - begin).trimmed();
        begin = place + 1;
        if (letter == ';')
            break;
    }
    return fields;
}

/// What a length of one is; nothing where the file has a name for it, a scale, or other signs between its fields.
std::optional<double> unitOf(const QList<QByteArray> &global)
{
    constexpr int scaleAt = 12;
    constexpr int unitAt = 13;
    const QByteArray scale = global.value(scaleAt);
    if (global.size() <= unitAt || (!scale.isEmpty() && QByteArray(scale).replace('D', 'E').toDouble() != 1.0))
        return std::nullopt;
    const QByteArray unit = global.at(unitAt);
    switch (unit.isEmpty() ? 1 : unit.toInt()) {
    case 1:
        return 25.4;
    case 2:
        return 1.0;
    case 4:
        return 304.8;
    case 6:
        return 1000.0;
    case 10:
        return 10.0;
    default:
        return std::nullopt;
    }
}

/// Finds what bounds the model among the entities, and the box around it.
class Look
{
public:
    explicit Look(const QHash<int, Entity> &entities) : m_entities(entities) {}

    [[nodiscard]] std::optional<double> extent()
    {
        for (auto entity = m_entities.begin(); entity != m_entities.end(); ++entity)
            collect(entity.value());
        for (auto entity = m_entities.begin(); entity != m_entities.end(); ++entity) {
            const int kind = entity->kind;
            const bool isGeometry = kind >= Arc && kind <= OffsetSurface && kind != Plane && kind != Point;
            if (isGeometry && kind != Transformation && entity->isOnItsOwn && !m_used.contains(entity.key()))
                m_bounds << entity.key();
        }
        // The list grows by the parts of composite curves.
        for (int at = 0; m_isPlain && at < m_bounds.size(); ++at)
            addToBox(m_bounds.at(at));
        return m_isPlain ? m_box.extent() : std::nullopt;
    }

private:
    [[nodiscard]] static int whole(const QList<QByteArray> &fields, int at)
    {
        constexpr int most = 1 << 20;
        return std::clamp(fields.value(at).toInt(), 0, most);
    }

    void collect(const Entity &entity)
    {
        switch (entity.kind) {
        case Arc:
        case Line:
        case Point:
        case Transformation:
        case Curve:
        case Surface:
            return;
        case Boundary:
        case BoundedSurface:
        case Subfigure:
            m_isPlain = false;
            return;
        default:
            break;
        }
        if (entity.kind >= Block && entity.kind < Solid)
            m_isPlain = false;
        const bool isStructure = entity.kind == Composite || entity.kind == CurveOnSurface ||
                                 entity.kind == TrimmedSurface || entity.kind == Group || entity.kind == Solid ||
                                 (entity.kind >= Vertices && entity.kind <= Shell);
        if (isStructure && entity.transformation != 0)
            m_isPlain = false;
        const QList<QByteArray> fields = fieldsOf(entity.record);
        if (entity.kind == CurveOnSurface) {
            // The surface and the curve in its parameters bound nothing.
            m_used << whole(fields, 2) << whole(fields, 3) << whole(fields, 4);
            m_bounds << whole(fields, 4);
        } else if (entity.kind == TrimmedSurface) {
            m_used << whole(fields, 1);
            if (whole(fields, 2) == 0)
                m_bounds << whole(fields, 1);
        } else if (entity.kind == Face) {
            m_used << whole(fields, 1);
        } else if (entity.kind == Edges) {
            constexpr int fieldsOfEdge = 5;
            for (int at = 2; at < fields.size(); at += fieldsOfEdge)
                m_bounds << whole(fields, at);
        }
    }

    void addToBox(int number)
    {
        if (m_done.contains(number))
            return;
        m_done << number;
        const Entity entity = m_entities.value(number);
        const QList<QByteArray> fields = fieldsOf(entity.record);
        switch (entity.kind) {
        case Composite:
            for (int at = 2; at < std::min(2 + whole(fields, 1), fields.size()); ++at)
                m_bounds << whole(fields, at);
            break;
        case Line:
            addPoints(entity, fields, 1, 2);
            break;
        case Point:
            addPoints(entity, fields, 1, 1);
            break;
        case Arc:
            addArc(entity, fields);
            break;
        case Curve:
            addPoints(entity, fields, 7 + whole(fields, 1) + whole(fields, 2) + 2 + whole(fields, 1) + 1,
                      whole(fields, 1) + 1);
            break;
        case Surface: {
            const int poles = int(std::min((whole(fields, 1) + 1) * qint64(whole(fields, 2) + 1), qint64(1 << 20)));
            const int knots = whole(fields, 1) + whole(fields, 3) + 2 + whole(fields, 2) + whole(fields, 4) + 2;
            addPoints(entity, fields, 10 + knots + poles, poles);
            break;
        }
        default:
            m_isPlain = false;
        }
    }

    [[nodiscard]] double number(const QList<QByteArray> &fields, int at)
    {
        bool isNumber = false;
        const QByteArray text = fields.value(at);
        const double value = text.isEmpty() ? 0.0 : QByteArray(text).replace('D', 'E').toDouble(&isNumber);
        if (at >= fields.size() || !(isNumber || text.isEmpty()) || !std::isfinite(value))
            m_isPlain = false;
        return value;
    }

    void addPoints(const Entity &entity, const QList<QByteArray> &fields, int first, int count)
    {
        for (int at = first; m_isPlain && at < first + 3 * count; at += 3)
            addPoint(entity.transformation, {number(fields, at), number(fields, at + 1), number(fields, at + 2)});
    }

    void addArc(const Entity &entity, const QList<QByteArray> &fields)
    {
        constexpr double turn = 6.283185307179586;
        constexpr int steps = 8;
        const double x = number(fields, 2);
        const double y = number(fields, 3);
        const double fromX = number(fields, 4) - x;
        const double fromY = number(fields, 5) - y;
        const double from = std::atan2(fromY, fromX);
        double sweep = std::atan2(number(fields, 7) - y, number(fields, 6) - x) - from;
        if (sweep <= 0.0)
            sweep += turn;
        const double radius = std::hypot(fromX, fromY);
        for (int step = 0; step <= steps; ++step) {
            const double angle = from + sweep * step / steps;
            addPoint(entity.transformation,
                     {x + radius * std::cos(angle), y + radius * std::sin(angle), number(fields, 1)});
        }
    }

    void addPoint(int transformation, olBox::Point point)
    {
        // A transformation can have one of its own; one in a circle is a fault of the file.
        for (int depth = 0; transformation != 0 && depth < 8; ++depth) {
            const Entity mover = m_entities.value(transformation);
            if (mover.kind != Transformation)
                m_isPlain = false;
            const QList<QByteArray> fields = fieldsOf(mover.record);
            olBox::Point moved{};
            for (int row = 0; row < 3; ++row) {
                moved[std::size_t(row)] = number(fields, 4 * row + 4);
                for (int column = 0; column < 3; ++column)
                    moved[std::size_t(row)] += number(fields, 4 * row + column + 1) * point[std::size_t(column)];
            }
            point = moved;
            transformation = mover.transformation;
        }
        m_box.add(point);
    }

    const QHash<int, Entity> &m_entities;
    QList<int> m_bounds;
    QSet<int> m_used;
    QSet<int> m_done;
    olBox m_box;
    bool m_isPlain = true;
};

} // namespace

std::optional<double> olIgesExtent(QFile &file)
{
    // Lines of fixed columns: the letter of the section is followed by the line's number in it.
    constexpr int sectionAt = 72;
    constexpr int ownerAt = 64;
    constexpr int fieldWidth = 8;
    if (file.size() > mostBytes)
        return std::nullopt;
    QByteArray global;
    QHash<int, Entity> entities;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        const auto field = [&line](int at) { return line.mid(at, fieldWidth).trimmed().toInt(); };
        const int number = line.mid(sectionAt + 1).trimmed().toInt();
        switch (line.size() > sectionAt ? line.at(sectionAt) : ' ') {
        case 'G':
            global += line.left(sectionAt);
            break;
        case 'D':
            // Each has two lines and goes by the number of the first.
            if (number % 2 == 1) {
                Entity &entity = entities[number];
                entity.kind = field(0);
                entity.transformation = field(6 * fieldWidth);
                // The second pair of digits says whether it depends on another, the third that it is no drawing.
                entity.isOnItsOwn = line.mid(8 * fieldWidth, fieldWidth).mid(2, 4).trimmed().toInt() == 0;
            }
            break;
        case 'P':
            entities[field(ownerAt)].record += line.left(ownerAt);
            break;
        default:
            break;
        }
    }
    const std::optional<double> unit = unitOf(fieldsOf(global));
    const std::optional<double> extent = unit ? Look(entities).extent() : std::nullopt;
    return extent ? std::optional<double>(*extent * *unit) : std::nullopt;
}
