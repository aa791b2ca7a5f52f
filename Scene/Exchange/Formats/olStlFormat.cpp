#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/Formats/olTextOutput.h"
#include "Exchange/olMeshDocument.h"
#include "Exchange/olMeshTree.h"
#include "Exchange/olModelFormat.h"

#include "State/olHostState.h"

#include <Message_ProgressScope.hxx>
#include <Poly_Triangulation.hxx>
#include <TDocStd_Document.hxx>
#include <gp_Trsf.hxx>
#include <gp_XYZ.hxx>

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <system_error>
#include <vector>

using namespace olFormatTools;

olModelFormat olStlFormat();

namespace
{

constexpr int binaryHead = 84;
constexpr int binaryTriangle = 50;

// What the host's state says of a binary export.
constexpr int binaryExport = 1;

constexpr int progressEvery = 1 << 16;

const QByteArray byteOrderMark = QByteArrayLiteral("\xef\xbb\xbf");

bool isSpace(char letter) { return letter == ' ' || (letter >= '\t' && letter <= '\r'); }

/// The bytes begin as text does: with the word, whatever mark, blanks and comments stand before it.
bool isText(const QByteArray &start)
{
    int at = start.startsWith(byteOrderMark) ? byteOrderMark.size() : 0;
    for (; at < start.size() && (isSpace(start.at(at)) || start.at(at) == '#'); ++at) {
        if (start.at(at) == '#')
            at = qMax(at, start.indexOf('\n', at));
    }
    const QByteArray words = start.mid(at).toLower();
    return words.startsWith("solid") && (words.contains("facet") || words.contains("endsolid"));
}

olResult<> check(QFile &file, QStringList &remarks)
{
    const QByteArray start = file.read(4096);
    // Some programs begin binary files with the word that begins text.
    if (start.size() >= binaryHead) {
        const qint64 size = binaryHead + qint64(qFromLittleEndian<quint32>(start.constData() + 80)) * binaryTriangle;
        if (file.size() == size)
            return {};
        if (!isText(start) && file.size() > size && size > binaryHead) {
            remarks << olReason::tr("%1 bytes behind its end were passed over.").arg(file.size() - size);
            return {};
        }
    }
    if (isText(start))
        return tailOf(file).toLower().contains("endsolid") ? olResult<>() : cutOff();
    return start.size() < binaryHead ? olFailure{olReason::tr("this is no STL file")} : cutOff();
}

/// Corners that lie in one place become one node.
class Nodes
{
public:
    int add(double x, double y, double z)
    {
        if (2 * (m_points.size() + 1) > m_table.size())
            reserve(m_points.size() + 1);
        // Both zeros are the same place.
        const gp_XYZ point(x + 0.0, y + 0.0, z + 0.0);
        int &slot = m_table[slotOf(point)];
        if (slot < 0) {
            slot = int(m_points.size());
            m_points.push_back(point);
        }
        return slot;
    }

    /// Makes room for so many at once.
    void reserve(std::size_t count)
    {
        std::size_t size = 1 << 10;
        while (size < 2 * count)
            size *= 2;
        m_points.reserve(size / 2);
        m_table.assign(size, -1);
        for (std::size_t index = 0; index < m_points.size(); ++index)
            m_table[slotOf(m_points[index])] = int(index);
    }

    [[nodiscard]] const std::vector<gp_XYZ> &points() const { return m_points; }

private:
    [[nodiscard]] std::size_t slotOf(const gp_XYZ &point) const
    {
        std::uint64_t hash = 0;
        for (const double part : {point.X(), point.Y(), point.Z()}) {
            std::uint64_t bits = 0;
            std::memcpy(&bits, &part, sizeof(bits));
            hash = (hash ^ bits) * 0x9e3779b97f4a7c15u;
            hash ^= hash >> 32;
        }
        std::size_t slot = hash & (m_table.size() - 1);
        while (m_table[slot] >= 0) {
            const gp_XYZ &there = m_points[std::size_t(m_table[slot])];
            if (there.X() == point.X() && there.Y() == point.Y() && there.Z() == point.Z())
                break;
            slot = (slot + 1) & (m_table.size() - 1);
        }
        return slot;
    }

    std::vector<gp_XYZ> m_points;
    std::vector<int> m_table;
};

/// One body of the file.
struct Solid {
    QString name;
    Nodes nodes;
    std::vector<Poly_Triangle> triangles;

    void add(const double (&corners)[9])
    {
        int node[3];
        for (int corner = 0; corner < 3; ++corner)
            node[corner] = nodes.add(corners[3 * corner], corners[3 * corner + 1], corners[3 * corner + 2]) + 1;
        triangles.emplace_back(node[0], node[1], node[2]);
    }
};

/// Words and numbers of a text, without its comments.
class Words
{
public:
    explicit Words(const QByteArray &text) : m_at(text.constData()), m_end(text.constData() + text.size())
    {
        if (text.startsWith(byteOrderMark))
            m_at += byteOrderMark.size();
    }

    /// Empty at the end.
    std::string_view next()
    {
        skip();
        const char *start = m_at;
        while (m_at < m_end && !isSpace(*m_at))
            ++m_at;
        return {start, std::size_t(m_at - start)};
    }

    /// Whether the next word is this one; it must be in lower case.
    bool take(std::string_view word)
    {
        const std::string_view there = next();
        return there.size() == word.size() &&
               std::equal(there.begin(), there.end(), word.begin(),
                          [](char one, char other) { return (one >= 'A' && one <= 'Z' ? one + 32 : one) == other; });
    }

    bool takeNumber(double &number)
    {
        skip();
        const char *start = m_at < m_end && *m_at == '+' ? m_at + 1 : m_at;
        const auto [end, error] = std::from_chars(start, m_end, number);
        m_at = end;
        if (error == std::errc())
            return m_at == m_end || isSpace(*m_at);
        // A word in the place of a number counts as 0; a number with a fault in it is damage.
        const std::string_view word = next();
        number = 0;
        ++m_wordsForNumbers;
        return !word.empty() && std::all_of(word.begin(), word.end(), [](char letter) {
            return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
        });
    }

    [[nodiscard]] int wordsForNumbers() const { return m_wordsForNumbers; }

    /// Up to the end of the line, or a comment.
    QString rest()
    {
        const char *start = m_at;
        while (m_at < m_end && *m_at != '\n' && *m_at != '#')
            ++m_at;
        return QString::fromUtf8(start, int(m_at - start)).trimmed();
    }

    /// For messages; the first is 1.
    [[nodiscard]] qint64 line(const QByteArray &text) const { return 1 + std::count(text.constData(), m_at, '\n'); }

    [[nodiscard]] std::size_t left() const { return std::size_t(m_end - m_at); }

private:
    void skip()
    {
        for (; m_at < m_end && (isSpace(*m_at) || *m_at == '#'); ++m_at) {
            if (*m_at == '#')
                m_at = std::find(m_at, m_end - 1, '\n');
        }
    }

    const char *m_at;
    const char *m_end;
    int m_wordsForNumbers = 0;
};

bool readFacet(Words &words, Solid &solid)
{
    double normal = 0;
    double corners[9];
    bool isGood = words.take("normal");
    // The normal follows from the corners.
    for (int index = 0; isGood && index < 3; ++index)
        isGood = words.takeNumber(normal);
    isGood = isGood && words.take("outer") && words.take("loop");
    for (int corner = 0; isGood && corner < 3; ++corner) {
        isGood = words.take("vertex") && words.takeNumber(corners[3 * corner]) &&
                 words.takeNumber(corners[3 * corner + 1]) && words.takeNumber(corners[3 * corner + 2]);
    }
    isGood = isGood && words.take("endloop") && words.take("endfacet");
    if (isGood)
        solid.add(corners);
    return isGood;
}

olResult<> readText(const QByteArray &text, std::vector<Solid> &solids, Message_ProgressScope &scope,
                    QStringList &remarks)
{
    Words words(text);
    const auto damagedHere = [&] {
        return olFailure{olReason::tr("the file is damaged in line %1").arg(words.line(text))};
    };
    std::size_t told = words.left();
    for (std::string_view word = words.next(); !word.empty(); word = words.next()) {
        const bool isSolid = word.size() == 5 && QByteArray::fromRawData(word.data(), 5).toLower() == "solid";
        if (!isSolid)
            return damagedHere();
        solids.emplace_back();
        solids.back().name = words.rest();
        for (;;) {
            const std::string_view inside = words.next();
            const QByteArray what = QByteArray::fromRawData(inside.data(), int(inside.size())).toLower();
            if (what == "endsolid")
                break;
            if (what != "facet" || !readFacet(words, solids.back()))
                return damagedHere();
            if (told - words.left() > std::size_t(progressEvery) * binaryTriangle) {
                scope.Next(double(told - words.left()) / double(text.size()));
                told = words.left();
            }
        }
        words.rest();
    }
    if (words.wordsForNumbers() > 0)
        remarks << olReason::tr("Words in the place of numbers, which count as 0: %1.").arg(words.wordsForNumbers());
    return {};
}

void readBinary(const uchar *bytes, Solid &solid, Message_ProgressScope &scope)
{
    const auto count = qFromLittleEndian<quint32>(bytes + 80);
    solid.triangles.reserve(count);
    // As in a closed surface.
    solid.nodes.reserve(count / 2);
    const uchar *triangle = bytes + binaryHead;
    for (quint32 index = 0; index < count; ++index, triangle += binaryTriangle) {
        double corners[9];
        for (int part = 0; part < 9; ++part)
            corners[part] = double(qFromLittleEndian<float>(triangle + 12 + 4 * part));
        solid.add(corners);
        if (index % progressEvery == progressEvery - 1)
            scope.Next(double(progressEvery) / count);
    }
}

Handle(Poly_Triangulation) meshOf(const Solid &solid)
{
    const std::vector<gp_XYZ> &points = solid.nodes.points();
    const Handle(Poly_Triangulation) mesh =
        new Poly_Triangulation(int(points.size()), int(solid.triangles.size()), Standard_False);
    for (std::size_t index = 0; index < points.size(); ++index)
        mesh->SetNode(int(index) + 1, points[index]);
    for (std::size_t index = 0; index < solid.triangles.size(); ++index)
        mesh->SetTriangle(int(index) + 1, solid.triangles[index]);
    return mesh;
}

olResult<> read(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress,
                QStringList &remarks)
{
    QFile file(job.fileToRead());
    if (!file.open(QIODevice::ReadOnly))
        return olFailure{file.errorString()};
    const uchar *bytes = file.map(0, file.size());
    if (!bytes)
        return olFailure{file.errorString()};
    Message_ProgressScope scope(progress, "Triangles", 1);
    std::vector<Solid> solids;
    const bool isBinary = file.size() >= binaryHead &&
                          file.size() == binaryHead + qint64(qFromLittleEndian<quint32>(bytes + 80)) * binaryTriangle;
    // Not more than an integer counts: the size of a file is checked before.
    const QByteArray text = QByteArray::fromRawData(reinterpret_cast<const char *>(bytes), int(file.size()));
    if (!isBinary && isText(text.left(4096))) {
        const olResult<> taken = readText(text, solids, scope, remarks);
        if (!taken.isOk())
            return taken;
    } else {
        solids.emplace_back();
        readBinary(bytes, solids.back(), scope);
    }

    const QString name = QFileInfo(job.file).completeBaseName();
    olMeshDocument target(document);
    std::vector<olMeshDocument::Member> parts;
    for (const Solid &solid : solids) {
        if (solid.triangles.empty()) {
            remarks << olReason::tr("The solid %1 is empty.").arg(solid.name);
            continue;
        }
        const TDF_Label part = target.addPart(solids.size() == 1 ? name : solid.name, {{meshOf(solid), {}}});
        parts.push_back({part, {}, solid.name});
    }
    if (parts.empty())
        return olFailure{olReason::tr("there is no geometry in it")};
    if (solids.size() > 1)
        target.addGroup(name, parts);
    target.finish();
    return {};
}

using Corners = std::array<gp_XYZ, 3>;

/// All triangles of one part that stands somewhere.
template <class Visitor>
void eachTriangle(const std::vector<olMeshTree::Piece> &pieces, const gp_Trsf &where, const Visitor &visit)
{
    for (const olMeshTree::Piece &piece : pieces) {
        for (std::size_t first = 0; first < piece.corners.size(); first += 3) {
            Corners corners;
            for (std::size_t corner = 0; corner < 3; ++corner) {
                corners[corner] = piece.points[std::size_t(piece.corners[first + corner])];
                where.Transforms(corners[corner]);
            }
            const gp_XYZ across = (corners[1] - corners[0]).Crossed(corners[2] - corners[0]);
            const double length = across.Modulus();
            visit(corners, length > 0 ? across / length : gp_XYZ(0, 0, 0));
        }
    }
}

/// A solid for each part.
bool writeText(const olMeshTree &tree, const QString &file)
{
    olTextOutput out(file);
    tree.eachPlaced([&](const olMeshTree::Node &node, const gp_Trsf &where) {
        // A comment would begin with this sign.
        const QString name = node.name.simplified().replace(QLatin1Char('#'), QLatin1Char('_'));
        const std::vector<olMeshTree::Piece> pieces = tree.piecesOf(node.part);
        if (pieces.empty())
            return;
        out << "solid " << name << "\n";
        eachTriangle(pieces, where, [&out](const Corners &corners, const gp_XYZ &normal) {
            out << "facet normal " << normal.X() << ' ' << normal.Y() << ' ' << normal.Z() << "\nouter loop\n";
            for (const gp_XYZ &corner : corners)
                out << "vertex " << corner.X() << ' ' << corner.Y() << ' ' << corner.Z() << "\n";
            out << "endloop\nendfacet\n";
        });
        out << "endsolid " << name << "\n";
    });
    return out.finish();
}

/// All in one, as this form knows no parts.
bool writeBinary(const olMeshTree &tree, const QString &file)
{
    QByteArray bytes(binaryHead, ' ');
    tree.eachPlaced([&](const olMeshTree::Node &node, const gp_Trsf &where) {
        eachTriangle(tree.piecesOf(node.part), where, [&bytes](const Corners &corners, const gp_XYZ &normal) {
            for (const gp_XYZ &point : {normal, corners[0], corners[1], corners[2]}) {
                for (const double part : {point.X(), point.Y(), point.Z()}) {
                    char number[4];
                    qToLittleEndian(float(part), number);
                    bytes.append(number, 4);
                }
            }
            bytes.append(2, '\0');
        });
    });
    char count[4];
    qToLittleEndian(quint32((bytes.size() - binaryHead) / binaryTriangle), count);
    bytes.replace(binaryHead - 4, 4, count, 4);
    QFile out(file);
    return out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size();
}

/// As text or binary, as the host's state says.
bool write(const olScene::Document &document, const QString &file, QStringList &remarks)
{
    const olMeshTree tree(document);
    if (olHostState::the().stlExportFormat != binaryExport)
        return writeText(tree, file);
    int placed = 0;
    tree.eachPlaced([&placed](const olMeshTree::Node &, const gp_Trsf &) { ++placed; });
    if (placed > 1)
        remarks << olReason::tr("%1 parts are one in the file, as binary STL knows no parts.").arg(placed);
    return writeBinary(tree, file);
}

} // namespace

olModelFormat olStlFormat()
{
    return {"STL", "STL", {QStringLiteral("stl")}, olModelFormat::Meshes | olModelFormat::Names, check, read, write};
}
