#include "Model/olScene.h"

#include "Model/olSampleAssembly.h"
#include "Model/olTriangles.h"

#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFPrs_DocumentExplorer.hxx>

namespace
{

QSet<QString> hiddenIn(const olScene::Document &document)
{
    QSet<QString> hidden;
    for (XCAFPrs_DocumentExplorer explorer(document, XCAFPrs_DocumentExplorerFlags_OnlyLeafNodes); explorer.More();
         explorer.Next()) {
        if (!explorer.Current().Style.IsVisible())
            hidden.insert(QString::fromLatin1(explorer.Current().Id.ToCString()));
    }
    return hidden;
}

} // namespace

olScene::olScene(QObject *parent) : QObject(parent), m_document(newDocument()) {}

olScene::~olScene() = default;

bool olScene::isEmpty() const
{
    TDF_LabelSequence shapes;
    XCAFDoc_DocumentTool::ShapeTool(m_document->Main())->GetFreeShapes(shapes);
    return shapes.IsEmpty();
}

unsigned olScene::triangleCount() const { return olTriangles::count(m_document); }

void olScene::setDocument(const Document &document)
{
    m_document = document.IsNull() ? newDocument() : document;
    m_hidden = hiddenIn(m_document);
    emit changed();
}

void olScene::setHiddenParts(const QSet<QString> &parts)
{
    if (m_hidden == parts)
        return;
    m_hidden = parts;
    emit visibilityChanged();
}

void olScene::clear() { setDocument(newDocument()); }

void olScene::loadSample() { setDocument(olSampleAssembly::build()); }

olScene::Document olScene::newDocument()
{
    // A document of its own, without an application that would register and keep it: applications are shared by
    // threads, documents are not.
    const Document document = new TDocStd_Document("BinXCAF");
    XCAFDoc_DocumentTool::Set(document->Main());
    // What has no name keeps none; the library's own would name a kind or an address.
    XCAFDoc_ShapeTool::SetAutoNaming(Standard_False);
    return document;
}
