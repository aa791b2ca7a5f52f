#include "Exchange/olImportReaders.h"

#include "Exchange/Formats/olImportVrml.h"
#include "Model/olLibraryMessages.h"

#include <BRep_Builder.hxx>
#include <IFSelect_ReturnStatus.hxx>
#include <IGESCAFControl_Reader.hxx>
#include <IGESControl_Controller.hxx>
#include <Interface_Static.hxx>
#include <Message_ProgressScope.hxx>
#include <Poly_Triangulation.hxx>
#include <RWGltf_CafReader.hxx>
#include <RWObj_CafReader.hxx>
#include <RWStl.hxx>
#include <STEPCAFControl_Controller.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopoDS_Face.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <mutex>

namespace
{

constexpr double meter = 0.001;

std::mutex &exchange()
{
    static std::mutex one;
    return one;
}

QString reason(const char *text) { return QCoreApplication::translate("olImport", text); }
QString damaged() { return reason("the file is damaged or of another format"); }
QString noTemporary() { return reason("the temporary directory cannot be written to"); }

TCollection_AsciiString path(const QString &file) { return QFile::encodeName(file).constData(); }

/// Where the file is seen without those that lie beside it, so that a reader finds nothing that it refers to.
class Secluded
{
public:
    explicit Secluded(const olImportJob &job)
        : m_folder(QDir(job.temporaryDirectory).filePath(QStringLiteral("orlo-import-XXXXXX")))
    {
        m_file = m_folder.filePath(QFileInfo(job.file).fileName());
        m_isReady = m_folder.isValid() && QFile::link(job.file, m_file);
    }

    [[nodiscard]] bool isReady() const { return m_isReady; }
    [[nodiscard]] const QString &file() const { return m_file; }

private:
    QTemporaryDir m_folder;
    QString m_file;
    bool m_isReady = false;
};

bool isNumber(const TCollection_ExtendedString &text)
{
    bool isDigits = !text.IsEmpty();
    for (int index = 1; index <= text.Length(); ++index)
        isDigits = isDigits && QChar(text.Value(index)).isDigit();
    return isDigits;
}

/// An instance without a name bears its number in the file; the name of what stands there says more.
void nameNumberedInstances(const olScene::Document &document)
{
    TDF_LabelSequence labels;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetShapes(labels);
    for (const TDF_Label &label : labels) {
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(label, components);
        for (const TDF_Label &component : components) {
            Handle(TDataStd_Name) own;
            Handle(TDataStd_Name) referred;
            TDF_Label target;
            const bool isNumbered = component.FindAttribute(TDataStd_Name::GetID(), own) && isNumber(own->Get());
            if (isNumbered && XCAFDoc_ShapeTool::GetReferredShape(component, target) &&
                target.FindAttribute(TDataStd_Name::GetID(), referred))
                own->Set(referred->Get());
        }
    }
}

QString readStepFile(const QString &file, olScene::Document document, const Message_ProgressRange &progress)
{
    const olExchangeLock lock;
    STEPCAFControl_Controller::Init();
    Interface_Static::SetCVal("xstep.cascade.unit", "MM");
    STEPCAFControl_Reader reader;
    reader.SetColorMode(Standard_True);
    reader.SetNameMode(Standard_True);
    reader.SetLayerMode(Standard_True);
    reader.SetSHUOMode(Standard_True);
    if (reader.ReadFile(path(file).ToCString()) != IFSelect_RetDone)
        return damaged();
    if (!reader.Transfer(document, progress))
        return reason("its content cannot be taken over");
    nameNumberedInstances(document);
    return {};
}

QString readStep(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress)
{
    if (job.options.importReferencedFiles)
        return readStepFile(job.file, document, progress);
    const Secluded alone(job);
    return alone.isReady() ? readStepFile(alone.file(), document, progress) : noTemporary();
}

QString readIges(const olImportJob &job, olScene::Document document, const Message_ProgressRange &progress)
{
    const olExchangeLock lock;
    IGESControl_Controller::Init();
    Interface_Static::SetCVal("xstep.cascade.unit", "MM");
    IGESCAFControl_Reader reader;
    reader.SetColorMode(Standard_True);
    reader.SetNameMode(Standard_True);
    reader.SetLayerMode(Standard_True);
    reader.SetReadVisible(!job.options.importInvisibleSurfaces && !job.options.importInvisibleCurves);
    if (reader.ReadFile(path(job.file).ToCString()) != IFSelect_RetDone)
        return damaged();
    return reader.Transfer(document, progress) ? QString() : reason("its content cannot be taken over");
}

QString readStl(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress)
{
    const Handle(Poly_Triangulation) mesh = RWStl::ReadFile(path(job.file).ToCString(), progress);
    if (mesh.IsNull() || mesh->NbTriangles() == 0)
        return damaged();
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, mesh);
    const TDF_Label label = XCAFDoc_DocumentTool::ShapeTool(document->Main())->AddShape(face, Standard_False);
    TDataStd_Name::Set(label, QFileInfo(job.file).completeBaseName().toStdU16String().c_str());
    return {};
}

QString readMeshes(RWMesh_CafReader &reader, const QString &file, const olScene::Document &document,
                   const Message_ProgressRange &progress)
{
    reader.SetDocument(document);
    reader.SetFillIncompleteDocument(false);
    const olLibraryFailures failures;
    const bool isRead = reader.Perform(path(file), progress);
    if (!failures.first().isEmpty())
        return reason("the file is damaged (%1)").arg(failures.first());
    return isRead ? QString() : damaged();
}

QString readGltf(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress)
{
    RWGltf_CafReader reader;
    reader.SetSystemLengthUnit(meter);
    reader.SetSystemCoordinateSystem(RWMesh_CoordinateSystem_Zup);
    reader.SetDoublePrecision(true);
    return readMeshes(reader, job.file, document, progress);
}

QString readObj(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress)
{
    RWObj_CafReader reader;
    if (job.options.importReferencedFiles)
        return readMeshes(reader, job.file, document, progress);
    const Secluded alone(job);
    return alone.isReady() ? readMeshes(reader, alone.file(), document, progress) : noTemporary();
}

} // namespace

olExchangeLock::olExchangeLock() { exchange().lock(); }

olExchangeLock::~olExchangeLock() { exchange().unlock(); }

QString olReadModel(const olImportJob &job, const olModelFormat &format, const olScene::Document &document,
                    const Message_ProgressRange &progress)
{
    switch (format.id) {
    case olModelFormat::Step:
        return readStep(job, document, progress);
    case olModelFormat::Iges:
        return readIges(job, document, progress);
    case olModelFormat::Stl:
        return readStl(job, document, progress);
    case olModelFormat::Vrml:
        return olReadVrml(job.file, document);
    case olModelFormat::Obj:
        return readObj(job, document, progress);
    case olModelFormat::Gltf:
        return readGltf(job, document, progress);
    }
    return damaged();
}
