#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olAssimpReader.h"
#include "Exchange/olModelFormat.h"
#include "Model/olPlainLook.h"

#include <Message_ProgressRange.hxx>
#include <RWObj_CafWriter.hxx>
#include <TColStd_IndexedDataMapOfStringString.hxx>
#include <TDocStd_Document.hxx>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdlib>

using namespace olFormatTools;

olModelFormat olObjFormat();

namespace
{

bool isNumber(const QByteArray &text)
{
    char *end = nullptr;
    std::strtod(text.constData(), &end);
    return !text.isEmpty() && *end == '\0';
}

/// Counts points as they come, and compares with the count what faces refer to.
class Lines
{
public:
    /// What is wrong with a line, empty where nothing is.
    QString take(const QByteArray &line)
    {
        const QList<QByteArray> words = line.simplified().split(' ');
        const QByteArray &kind = words.first();
        if (kind == "v")
            return count(m_points, words, 3);
        if (kind == "vt")
            return count(m_textures, words, 1);
        if (kind == "vn")
            return count(m_normals, words, 3);
        if (kind == "f")
            return face(words);
        if (kind == "mtllib")
            m_materials = QFile::decodeName(line.trimmed().mid(7).trimmed());
        return {};
    }

    [[nodiscard]] const QString &materials() const { return m_materials; }
    [[nodiscard]] bool endsWithPoints() const { return m_points > m_highest; }

private:
    static QString count(qint64 &number, const QList<QByteArray> &words, int needed)
    {
        ++number;
        for (int index = 1; index <= needed; ++index) {
            if (index >= words.size() || !isNumber(words.at(index)))
                return olReason::tr("a point lacks a coordinate");
        }
        return {};
    }

    QString face(const QList<QByteArray> &words)
    {
        if (words.size() < 4)
            return olReason::tr("a face has fewer than three corners");
        for (int index = 1; index < words.size(); ++index) {
            const QList<QByteArray> corner = words.at(index).split('/');
            if (!refers(corner, 0, m_points) || !refers(corner, 1, m_textures) || !refers(corner, 2, m_normals))
                return olReason::tr("a face refers to a point that is not there");
        }
        return {};
    }

    /// Negative indices count from the last one back.
    bool refers(const QList<QByteArray> &corner, int which, qint64 count)
    {
        const bool isLeftOut = which > 0 && (which >= corner.size() || corner.at(which).isEmpty());
        if (isLeftOut)
            return true;
        bool isIndex = false;
        const qint64 index = corner.at(which).toLongLong(&isIndex);
        const qint64 absolute = index < 0 ? count + index + 1 : index;
        if (which == 0)
            m_highest = qMax(m_highest, absolute);
        return isIndex && absolute >= 1 && absolute <= count;
    }

    qint64 m_points = 0;
    qint64 m_textures = 0;
    qint64 m_normals = 0;
    qint64 m_highest = 0;
    QString m_materials;
};

QString check(QFile &file, QStringList &remarks)
{
    Lines lines;
    bool endsWithLine = true;
    for (qint64 number = 1; !file.atEnd(); ++number) {
        QByteArray line = file.readLine();
        endsWithLine = line.endsWith('\n');
        while (line.endsWith("\\\n") || line.endsWith("\\\r\n"))
            line = line.left(line.lastIndexOf('\\')) + ' ' + file.readLine();
        if (line.contains('\0'))
            return olReason::tr("this is no OBJ file");
        const QString fault = lines.take(line);
        if (!fault.isEmpty())
            return olReason::tr("the file is cut off or damaged: in line %1 %2").arg(number).arg(fault);
    }
    if (!endsWithLine && lines.endsWithPoints())
        return olReason::tr("the file is cut off or damaged: it ends within its points");
    if (lines.endsWithPoints())
        remarks << olReason::tr("The model ends with points that no face uses; the file may be cut off.");
    const QString materials = lines.materials();
    const QDir folder = QFileInfo(file).absoluteDir();
    const QStringList words = materials.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const bool isThere = QFileInfo::exists(folder.filePath(materials)) ||
                         std::any_of(words.begin(), words.end(), [&folder](const QString &word) {
                             return QFileInfo::exists(folder.filePath(word));
                         });
    if (!materials.isEmpty() && !isThere)
        remarks << olReason::tr("The materials file %1 is not there; the model has no colours.").arg(materials);
    return {};
}

QString read(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress,
             QStringList &remarks)
{
    return olAssimpReader::read(job, {}, document, progress, remarks);
}

bool write(const olScene::Document &document, const QString &file, QStringList &)
{
    RWObj_CafWriter writer(path(file));
    return writer.Perform(olPlainLook::asMaterials(document), TColStd_IndexedDataMapOfStringString(),
                          Message_ProgressRange());
}

} // namespace

olModelFormat olObjFormat()
{
    return {"OBJ",
            "OBJ",
            {QStringLiteral("obj")},
            olModelFormat::Meshes | olModelFormat::Colors | olModelFormat::Opacity | olModelFormat::Textures,
            check,
            read,
            write};
}
