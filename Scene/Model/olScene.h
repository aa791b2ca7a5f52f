#pragma once

#include <QObject>
#include <QSet>
#include <QString>

#include <Standard_Handle.hxx>

class TDocStd_Document;

/// What is open in the viewer: one document of named, coloured and structured shapes, in millimetres, z up.
/// Every shape in it is already triangulated as the options of its import want it; the view only draws.
class olScene : public QObject
{
    Q_OBJECT

public:
    using Document = opencascade::handle<TDocStd_Document>;

    explicit olScene(QObject *parent = nullptr);
    ~olScene() override;

    /// Never null; its shapes are read through XCAFDoc_DocumentTool. Another one after every change.
    [[nodiscard]] const Document &document() const { return m_document; }

    [[nodiscard]] bool isEmpty() const;

    /// How many triangles the instances of the scene have together.
    [[nodiscard]] unsigned triangleCount() const;

    /// Takes the document as the new content. A null one is taken as an empty one.
    void setDocument(const Document &document);

    /// Adds the document's content to what there is, which keeps what is hidden of it.
    void addDocument(const Document &document);

    /// Replaces the content by nothing, or by the assembly that the program builds itself.
    void clear();
    void loadSample();

    /// Parts that are not drawn, as the explorer of the document names them. At first those that the document hides.
    [[nodiscard]] const QSet<QString> &hiddenParts() const { return m_hidden; }
    void setHiddenParts(const QSet<QString> &parts);

    /// A document without shapes, ready to be filled; may be called in any thread.
    [[nodiscard]] static Document newDocument();

signals:
    /// The document was replaced.
    void changed();

    /// Other parts are hidden than before.
    void visibilityChanged();

private:
    Document m_document;
    QSet<QString> m_hidden;
};
