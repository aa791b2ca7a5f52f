#include "Exchange/olExportScene.h"

#include "Exchange/olDocumentContent.h"
#include "Exchange/olImportJob.h"
#include "Exchange/olModelFormat.h"
#include "Exchange/olPartChanges.h"
#include "Model/olDocumentCopy.h"
#include "Model/olLibraryMessages.h"
#include "State/olListed.h"

#include <Standard_Failure.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDF_Tool.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QPair>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QVector>

#include <set>
#include <sstream>
#include <string>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olExport)
};

/// What stands where in which group, as a key.
std::string placeOf(const TDF_Label &instance)
{
    TDF_Label part;
    XCAFDoc_ShapeTool::GetReferredShape(instance, part);
    std::ostringstream place;
    for (const TDF_Label &label : {instance.Father(), part}) {
        TCollection_AsciiString entry;
        TDF_Tool::Entry(label, entry);
        place << entry.ToCString() << ' ';
    }
    const gp_Trsf where = XCAFDoc_ShapeTool::GetLocation(instance).Transformation();
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 4; ++column)
            place << where.Value(row, column) << ' ';
    }
    return place.str();
}

/// Formats of surfaces take no triangles. And their writers fall over a part that stands twice in the same place with
/// different looks, which nobody can see anyway.
olScene::Document withoutMeshes(const olScene::Document &document, QStringList &remarks)
{
    olDocumentCopy copy;
    copy.keepEmptyGroups = false;
    std::set<std::string> places;
    copy.isWanted = [&places, &remarks](const TDF_Label &instance) {
        if (!XCAFDoc_ShapeTool::IsComponent(instance) || places.insert(placeOf(instance)).second)
            return true;
        remarks << Words::tr("%1 stands twice in the same place; it is written once.").arg(olShownNameOf(instance));
        return false;
    };
    copy.changePart = [&remarks](const TDF_Label &label, olChangedPart &part) {
        olPartChanges::keepOnly(part, {true, false, true});
        if (part.shape.IsNull())
            remarks
                << Words::tr("%1 is a mesh, which this format cannot hold; it is left out.").arg(olShownNameOf(label));
    };
    return copy.copy(document);
}

bool isEmpty(const olScene::Document &document)
{
    TDF_LabelSequence labels;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(labels);
    return labels.IsEmpty();
}

/// What of the document a file of the format will not have, in a sentence or two.
QStringList lossesOf(const olScene::Document &document, const olModelFormat &format)
{
    const unsigned lost = olDocumentContent(document) & ~format.content;
    const QVector<QPair<unsigned, QString>> kinds{
        {olModelFormat::Curves, Words::tr("curves")},
        {olModelFormat::Names, Words::tr("names of parts")},
        {olModelFormat::Structure, Words::tr("groups of parts")},
        {olModelFormat::Colors, Words::tr("colors")},
        {olModelFormat::CornerColors, Words::tr("colors of corners")},
        {olModelFormat::Opacity, Words::tr("opacity")},
        {olModelFormat::Textures, Words::tr("textures")},
        {olModelFormat::Substances, Words::tr("physical materials")},
        {olModelFormat::Layers, Words::tr("layers")},
        {olModelFormat::Hidden, Words::tr("hidden parts")},
    };
    QStringList names;
    for (const auto &[kind, name] : kinds) {
        if (lost & kind)
            names << name;
    }
    QStringList losses;
    if (lost & olModelFormat::Surfaces)
        losses << Words::tr("%1 knows no exact surfaces; their triangles are written.").arg(QLatin1String(format.name));
    if (!names.isEmpty())
        losses << Words::tr("These are not in the file, as %1 does not know them: %2.")
                      .arg(QLatin1String(format.name), olListed(names));
    return losses;
}

/// Puts one finished file in the place of what was there. Says why it could not, in half a sentence.
olResult<> putInPlace(const QString &finished, const QString &target)
{
    constexpr qint64 block = 1 << 20;
    QFile source(finished);
    QSaveFile destination(target);
    if (!source.open(QIODevice::ReadOnly))
        return olFailure{source.errorString()};
    if (!destination.open(QIODevice::WriteOnly))
        return olFailure{destination.errorString()};
    while (!source.atEnd()) {
        if (destination.write(source.read(block)) < 0)
            return olFailure{destination.errorString()};
    }
    return destination.commit() ? olResult<>() : olFailure{destination.errorString()};
}

/// Written where it disturbs nobody first: a format may take several files, and half of one is worse than none.
olResult<> writeThroughTemporary(const olScene::Document &document, const olModelFormat &format, const QString &file,
                                 QStringList &remarks)
{
    const QTemporaryDir folder(
        QDir(olImportJob::of(file).temporaryDirectory).filePath(QStringLiteral("orlo-export-XXXXXX")));
    if (!folder.isValid())
        return olFailure{Words::tr("the temporary directory cannot be written to")};
    const QFileInfo target(file);
    // A name that begins with a colon is not another place.
    const QString draft = folder.path() + QLatin1Char('/') + target.fileName();
    if (!format.write(document, draft, remarks) || !QFileInfo(draft).isFile())
        return olFailure{Words::tr("the writer failed")};
    // Textures stand in a folder of their own.
    const QDir from(folder.path());
    for (QDirIterator each(folder.path(), QDir::Files, QDirIterator::Subdirectories); each.hasNext();) {
        const QString written = each.next();
        const QString place = target.absolutePath() + QLatin1Char('/') + from.relativeFilePath(written);
        if (!QDir().mkpath(QFileInfo(place).path()))
            return olFailure{Words::tr("the folder %1 cannot be made").arg(QFileInfo(place).path())};
        const olResult<> put = putInPlace(written, place);
        if (!put.isOk())
            return put;
    }
    return {};
}

olResult<> attempt(const olScene::Document &document, const olModelFormat &format, const QString &file,
                   QStringList &remarks)
{
    try {
        const olScene::Document content =
            format.holds(olModelFormat::Meshes) ? document : withoutMeshes(document, remarks);
        if (isEmpty(content))
            return olFailure{Words::tr("there is nothing that this format can hold")};
        remarks << lossesOf(content, format);
        return writeThroughTemporary(content, format, file, remarks);
    } catch (const Standard_Failure &failure) {
        return olFailure{Words::tr("the writer failed (%1)").arg(QString::fromUtf8(failure.DynamicType()->Name()))};
    } catch (const std::exception &failure) {
        return olFailure{Words::tr("the writer failed (%1)").arg(QString::fromLocal8Bit(failure.what()))};
    }
}

} // namespace

olResult<QStringList> olExportScene(const olScene::Document &document, const QString &file)
{
    olSilenceLibrary();
    const olModelFormat *format = olModelFormat::ofFile(file);
    if (!format || !format->write)
        return olFailure{olModelFormat::noWriter(file)};
    QStringList remarks;
    const olResult<> written = attempt(document, *format, file, remarks);
    if (!written.isOk())
        return olFailure{Words::tr("Cannot write %1: %2.").arg(file, written.error())};
    return remarks;
}
