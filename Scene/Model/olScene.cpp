#include "Model/olScene.h"

#include "Model/olDocumentCopy.h"
#include "Model/olLibraryMessages.h"
#include "Model/olSampleAssembly.h"
#include "Model/olTriangles.h"

#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFPrs_DocumentExplorer.hxx>

namespace
{

constexpr auto leaves = XCAFPrs_DocumentExplorerFlags_OnlyLeafNodes;

QString idOf(const XCAFPrs_DocumentExplorer &explorer)
{
    return QString::fromLatin1(explorer.Current().Id.ToCString());
}

QSet<QString> hiddenIn(const olScene::Document &document)
{
    QSet<QString> hidden;
    for (XCAFPrs_DocumentExplorer explorer(document, leaves); explorer.More(); explorer.Next()) {
        if (!explorer.Current().Style.IsVisible())
            hidden.insert(idOf(explorer));
    }
    return hidden;
}

} // namespace

olScene::olScene(QObject *parent) : QObject(parent), m_document(newDocument()) { olSilenceLibrary(); }

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

void olScene::addDocument(const Document &document)
{
    if (isEmpty())
        return setDocument(document);
    const olDocumentCopy copy;
    const Document both = copy.copy(m_document);
    copy.copyInto(document, both);
    // The copy begins with the same parts in the same order, but calls them otherwise.
    QSet<QString> hidden;
    XCAFPrs_DocumentExplorer before(m_document, leaves);
    for (XCAFPrs_DocumentExplorer now(both, leaves); now.More(); now.Next()) {
        const bool isHidden = before.More() ? m_hidden.contains(idOf(before)) : !now.Current().Style.IsVisible();
        if (isHidden)
            hidden.insert(idOf(now));
        if (before.More())
            before.Next();
    }
    m_document = both;
    m_hidden = hidden;
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
