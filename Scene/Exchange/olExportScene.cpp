#include "Exchange/olExportScene.h"

#include "Exchange/Formats/olExportIges.h"
#include "Exchange/Formats/olExportVrml.h"
#include "Exchange/olImportJob.h"
#include "Exchange/olImportReaders.h"
#include "Exchange/olModelFormat.h"
#include "Exchange/olPartChanges.h"
#include "Model/olDocumentCopy.h"
#include "Model/olLibraryMessages.h"
#include "Model/olPlainLook.h"

#include "State/olHostState.h"

#include <BRep_Builder.hxx>
#include <IFSelect_ReturnStatus.hxx>
#include <Interface_Static.hxx>
#include <Message_ProgressRange.hxx>
#include <RWGltf_CafWriter.hxx>
#include <RWObj_CafWriter.hxx>
#include <STEPCAFControl_Controller.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <Standard_Failure.hxx>
#include <StlAPI_Writer.hxx>
#include <TColStd_IndexedDataMapOfStringString.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDF_Tool.hxx>
#include <TDocStd_Document.hxx>
#include <TopoDS_Compound.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>

#include <set>
#include <sstream>
#include <string>

namespace
{

constexpr double meter = 0.001;

// Through the host's state: what its STL export format may be.
constexpr int binaryStl = 1;

QString translated(const char *text) { return QCoreApplication::translate("olExport", text); }

TCollection_AsciiString path(const QString &file) { return QFile::encodeName(file).constData(); }

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
        remarks << translated("%1 stands twice in the same place; it is written once.").arg(olNameOf(instance));
        return false;
    };
    copy.changePart = [&remarks](const TDF_Label &label, olChangedPart &part) {
        olPartChanges::keepOnly(part, {true, false, true});
        if (part.shape.IsNull())
            remarks << translated("%1 is a mesh, which this format cannot hold; it is left out.").arg(olNameOf(label));
    };
    return copy.copy(document);
}

bool isEmpty(const olScene::Document &document)
{
    TDF_LabelSequence labels;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(labels);
    return labels.IsEmpty();
}

TopoDS_Compound wholeShape(const olScene::Document &document)
{
    TopoDS_Compound whole;
    BRep_Builder builder;
    builder.MakeCompound(whole);
    TDF_LabelSequence labels;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(labels);
    for (const TDF_Label &label : labels)
        builder.Add(whole, XCAFDoc_ShapeTool::GetShape(label));
    return whole;
}

/// The STEP writer falls over an instance with a look of its own whose part has none.
void colorBareParts(const olScene::Document &document)
{
    const Handle(XCAFDoc_ColorTool) colors = XCAFDoc_DocumentTool::ColorTool(document->Main());
    TDF_LabelSequence labels;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetShapes(labels);
    for (const TDF_Label &label : labels) {
        if (!XCAFDoc_ShapeTool::IsAssembly(label) && !colors->IsSet(label, XCAFDoc_ColorSurf) &&
            !colors->IsSet(label, XCAFDoc_ColorGen))
            colors->SetColor(label, olPlainLook::bare(), XCAFDoc_ColorSurf);
    }
}

/// Of a document of its own, whose looks it completes.
bool writeStep(const olScene::Document &document, const QString &file)
{
    const olExchangeLock lock;
    colorBareParts(document);
    STEPCAFControl_Controller::Init();
    Interface_Static::SetCVal("xstep.cascade.unit", "MM");
    Interface_Static::SetCVal("write.step.unit", "MM");
    STEPCAFControl_Writer writer;
    return writer.Transfer(document, STEPControl_AsIs) && writer.Write(path(file).ToCString()) == IFSelect_RetDone;
}

bool writeStl(const olScene::Document &document, const QString &file)
{
    StlAPI_Writer writer;
    writer.ASCIIMode() = olHostState::the().stlExportFormat != binaryStl;
    return writer.Write(wholeShape(document), path(file).ToCString());
}

bool writeObj(const olScene::Document &document, const QString &file)
{
    RWObj_CafWriter writer(path(file));
    return writer.Perform(olPlainLook::asMaterials(document), TColStd_IndexedDataMapOfStringString(),
                          Message_ProgressRange());
}

bool writeGltf(const olScene::Document &document, const QString &file)
{
    const bool isBinary = QFileInfo(file).suffix().compare(QLatin1String("glb"), Qt::CaseInsensitive) == 0;
    RWGltf_CafWriter writer(path(file), isBinary);
    writer.ChangeCoordinateSystemConverter().SetInputLengthUnit(meter);
    writer.ChangeCoordinateSystemConverter().SetInputCoordinateSystem(RWMesh_CoordinateSystem_Zup);
    return writer.Perform(olPlainLook::asMaterials(document), TColStd_IndexedDataMapOfStringString(),
                          Message_ProgressRange());
}

bool write(const olScene::Document &document, const olModelFormat &format, const QString &file, QStringList &remarks)
{
    switch (format.id) {
    case olModelFormat::Step:
        return writeStep(document, file);
    case olModelFormat::Iges:
        return olWriteIges(document, file, remarks);
    case olModelFormat::Stl:
        return writeStl(document, file);
    case olModelFormat::Vrml:
        return olWriteVrml(document, file);
    case olModelFormat::Obj:
        return writeObj(document, file);
    case olModelFormat::Gltf:
        return writeGltf(document, file);
    }
    return false;
}

/// Puts one finished file in the place of what was there. Says why it could not, in half a sentence.
QString putInPlace(const QString &finished, const QString &target)
{
    constexpr qint64 block = 1 << 20;
    QFile source(finished);
    QSaveFile destination(target);
    if (!source.open(QIODevice::ReadOnly))
        return source.errorString();
    if (!destination.open(QIODevice::WriteOnly))
        return destination.errorString();
    while (!source.atEnd()) {
        if (destination.write(source.read(block)) < 0)
            return destination.errorString();
    }
    return destination.commit() ? QString() : destination.errorString();
}

/// Written where it disturbs nobody first: a format may take several files, and half of one is worse than none.
QString writeThroughTemporary(const olScene::Document &document, const olModelFormat &format, const QString &file,
                              QStringList &remarks)
{
    const QTemporaryDir folder(
        QDir(olImportJob::of(file).temporaryDirectory).filePath(QStringLiteral("orlo-export-XXXXXX")));
    if (!folder.isValid())
        return translated("the temporary directory cannot be written to");
    const QFileInfo target(file);
    if (!write(document, format, folder.filePath(target.fileName()), remarks))
        return translated("the writer failed");
    const QStringList written = QDir(folder.path()).entryList(QDir::Files);
    if (!written.contains(target.fileName()))
        return translated("the writer failed");
    for (const QString &each : written) {
        const QString fault = putInPlace(folder.filePath(each), target.absoluteDir().filePath(each));
        if (!fault.isEmpty())
            return fault;
    }
    return {};
}

QString attempt(const olScene::Document &document, const olModelFormat &format, const QString &file,
                QStringList &remarks)
{
    try {
        const bool takesMeshes = format.id != olModelFormat::Step && format.id != olModelFormat::Iges;
        const olScene::Document content = takesMeshes ? document : withoutMeshes(document, remarks);
        if (isEmpty(content))
            return translated("there is nothing that this format can hold");
        return writeThroughTemporary(content, format, file, remarks);
    } catch (const Standard_Failure &failure) {
        return translated("the writer failed (%1)").arg(QString::fromUtf8(failure.DynamicType()->Name()));
    } catch (const std::exception &failure) {
        return translated("the writer failed (%1)").arg(QString::fromLocal8Bit(failure.what()));
    }
}

} // namespace

olExportResult olExportScene(const olScene::Document &document, const QString &file)
{
    olSilenceLibrary();
    olExportResult result;
    const olModelFormat *format = olModelFormat::ofFile(file);
    if (!format) {
        result.error = olModelFormat::noWriter(file);
        return result;
    }
    const QString fault = attempt(document, *format, file, result.remarks);
    if (!fault.isEmpty())
        result.error = translated("Cannot write %1: %2.").arg(file, fault);
    return result;
}
