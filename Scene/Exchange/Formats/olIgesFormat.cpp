#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olModelFormat.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <IFSelect_ReturnStatus.hxx>
#include <IGESCAFControl_Reader.hxx>
#include <IGESCAFControl_Writer.hxx>
#include <IGESControl_Controller.hxx>
#include <IGESData_IGESEntity.hxx>
#include <IGESGeom_BoundedSurface.hxx>
#include <IGESGeom_TrimmedSurface.hxx>
#include <IGESSolid_Face.hxx>
#include <Interface_InterfaceModel.hxx>
#include <Interface_Static.hxx>
#include <Message_ProgressRange.hxx>
#include <Quantity_Color.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <Transfer_Binder.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFPrs_DocumentExplorer.hxx>
#include <XCAFPrs_Style.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <QFile>

#include <algorithm>
#include <iterator>
#include <vector>

using namespace olFormatTools;

olModelFormat olIgesFormat();

namespace
{

/// Lines are 80 characters: 72 of content, a letter that names the section, and a number.
class Lines
{
public:
    /// Whether the line is as one of its section must be.
    bool take(const QByteArray &line)
    {
        constexpr int sectionAt = 72;
        if (line.size() <= sectionAt)
            return false;
        const int section = sections.indexOf(line.at(sectionAt));
        // Sections follow each other; compressed files have one of their own, which is not counted.
        if (section < m_section)
            return line.at(sectionAt) == 'C';
        m_section = section;
        ++m_counts[section];
        if (line.at(sectionAt) == 'D')
            return isDirectory(line) && takePointers(line);
        if (line.at(sectionAt) == 'P')
            return isParameter(line);
        if (line.at(sectionAt) == 'T')
            m_terminate = line;
        return true;
    }

    /// Whether there are as many lines as the last one says.
    [[nodiscard]] bool isWhole() const
    {
        if (m_terminate.isEmpty())
            return false;
        for (int section = 0; section < 4; ++section) {
            const QByteArray field = m_terminate.mid(8 * section, 8);
            if (field.trimmed().isEmpty() || m_terminate.left(32).trimmed().isEmpty())
                continue;
            if (field.at(0) != sections.at(section) || field.mid(1).trimmed().toInt() != m_counts[section])
                return false;
        }
        return true;
    }

    /// An entry of the directory that refers to what is not there, by the number of its first line; 0 for none.
    [[nodiscard]] int danglingEntry() const
    {
        for (const auto &[entry, pointer, section] : m_pointers) {
            if (pointer < 1 || pointer > m_counts[section] || (section == directory && pointer % 2 == 0))
                return entry;
        }
        return 0;
    }

private:
    struct Pointer {
        int entry;
        int to;
        int section;
    };
    static constexpr int directory = 2;
    static constexpr int parameters = 3;

    /// Remembers what an entry of two lines refers to. Some numbers are pointers only where they are negative.
    bool takePointers(const QByteArray &line)
    {
        const auto number = [&line](int field) { return line.mid(8 * field, 8).trimmed().toInt(); };
        const int entry = m_counts[directory] - 1 + m_counts[directory] % 2;
        if (m_counts[directory] % 2 == 0) {
            constexpr int color = 2;
            takePointer(entry, -number(color));
            return true;
        }
        // What was deleted has no kind and no parameters.
        if (number(0) != 0)
            m_pointers.push_back({entry, number(1), parameters});
        for (const int structureFontOrLevel : {2, 3, 4})
            takePointer(entry, -number(structureFontOrLevel));
        for (const int viewMatrixOrLabel : {5, 6, 7})
            takePointer(entry, number(viewMatrixOrLabel));
        return true;
    }

    void takePointer(int entry, int to)
    {
        if (to > 0)
            m_pointers.push_back({entry, to, directory});
    }

    bool isDirectory(const QByteArray &line) const
    {
        // The second line of each entry ends with a label, which is any text.
        const bool isSecond = m_counts[2] % 2 == 0;
        const int numbers = isSecond ? 40 : 72;
        for (int at = 0; at < 72; ++at) {
            const char letter = line.at(at);
            const bool isNumber = (letter >= '0' && letter <= '9') || letter == ' ' || letter == '-' || letter == '+';
            if (at < numbers ? !isNumber : letter < ' ')
                return false;
        }
        return true;
    }

    /// Ends with the number of the entry that it belongs to.
    [[nodiscard]] bool isParameter(const QByteArray &line) const
    {
        bool isNumber = false;
        const QByteArray owner = line.mid(64, 8).trimmed();
        const int number = owner.toInt(&isNumber);
        const bool isOwned = owner.isEmpty() || (isNumber && number % 2 == 1 && number <= m_counts[2]);
        return isOwned && std::none_of(line.cbegin(), line.cbegin() + 64, [](char letter) {
                   return (letter >= 0 && letter < ' ' && letter != '\t') || letter == 127;
               });
    }

    static inline const QByteArray sections = QByteArrayLiteral("SGDPT");
    int m_section = 0;
    int m_counts[5] = {};
    std::vector<Pointer> m_pointers;
    QByteArray m_terminate;
};

olResult<> check(QFile &file, QStringList &)
{
    const QByteArray first = file.readLine(256);
    if (first.size() < 73 || (first.at(72) != 'S' && first.at(72) != 'C' && first.at(72) != 'B'))
        return olFailure{olReason::tr("this is no IGES file")};
    file.seek(0);
    Lines lines;
    for (int number = 1; !file.atEnd(); ++number) {
        QByteArray line = file.readLine();
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1);
        if (!line.trimmed().isEmpty() && !lines.take(line))
            return olFailure{olReason::tr("the file is damaged in line %1").arg(number)};
    }
    if (!lines.isWhole())
        return cutOff();
    const int dangling = lines.danglingEntry();
    if (dangling > 0)
        return olFailure{
            olReason::tr("the file is damaged: its entry D%1 refers to another that is not there").arg(dangling)};
    return {};
}

/// What the library tried to take over, and could not.
void remarkLost(const IGESCAFControl_Reader &reader, QStringList &remarks)
{
    const Handle(Transfer_TransientProcess) &process = reader.WS()->TransferReader()->TransientProcess();
    int faces = 0;
    for (int index = 1; index <= process->NbMapped(); ++index) {
        const Handle(Standard_Transient) &entity = process->Mapped(index);
        const Handle(Transfer_Binder) binder = process->MapItem(index);
        const bool isFace = entity->IsKind(STANDARD_TYPE(IGESGeom_TrimmedSurface)) ||
                            entity->IsKind(STANDARD_TYPE(IGESGeom_BoundedSurface)) ||
                            entity->IsKind(STANDARD_TYPE(IGESSolid_Face));
        faces += int(isFace && (binder.IsNull() || !binder->HasResult()));
    }
    if (faces > 0)
        remarks << olReason::tr("Faces that cannot be understood and are left out: %1.").arg(faces);
}

/// Surfaces and solids that are not shown and no piece of another.
void remarkHidden(const Handle(Interface_InterfaceModel) & model, QStringList &remarks)
{
    QStringList names;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        const Handle(IGESData_IGESEntity) entity = Handle(IGESData_IGESEntity)::DownCast(model->Value(number));
        constexpr int kinds[] = {143, 144, 186};
        if (entity.IsNull() || entity->BlankStatus() == 0 || entity->SubordinateStatus() % 2 != 0 ||
            std::find(std::begin(kinds), std::end(kinds), entity->TypeNumber()) == std::end(kinds))
            continue;
        const Handle(TCollection_HAsciiString) name = entity->NameValue();
        names << (name.IsNull() ? QString() : QString::fromUtf8(name->ToCString()).trimmed());
    }
    if (!names.isEmpty())
        remarks
            << olReason::tr("Invisible surfaces that the import options leave out: %1.").arg(listedWithNameless(names));
}

/// Of the kinds 100 to 199, geometry, and 500 to 599, boundaries of solids.
bool mustBeWhole(const Handle(Standard_Transient) & entity)
{
    const Handle(IGESData_IGESEntity) known = Handle(IGESData_IGESEntity)::DownCast(entity);
    const int hundreds = known.IsNull() ? 0 : known->TypeNumber() / 100;
    return hundreds == 1 || hundreds == 5;
}

olResult<> read(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress,
                QStringList &remarks)
{
    IGESControl_Controller::Init();
    Interface_Static::SetCVal("xstep.cascade.unit", "MM");
    IGESCAFControl_Reader reader;
    reader.SetColorMode(Standard_True);
    reader.SetNameMode(Standard_True);
    reader.SetLayerMode(Standard_True);
    const bool isOnlyShown = !job.options.importInvisibleSurfaces && !job.options.importInvisibleCurves;
    reader.SetReadVisible(isOnlyShown);
    if (reader.ReadFile(path(job.fileToRead()).ToCString()) != IFSelect_RetDone)
        return damaged();
    const olResult<> whole = checkEntities(reader.WS()->Model(), mustBeWhole, remarks);
    if (!whole.isOk())
        return whole;
    olScene::Document target = document;
    const bool isTaken = reader.Transfer(target, progress);
    remarkLost(reader, remarks);
    if (isOnlyShown)
        remarkHidden(reader.WS()->Model(), remarks);
    return isTaken ? olResult<>() : untaken();
}

/// Takes the instances of a document apart.
class Bodies
{
public:
    explicit Bodies(const olScene::Document &document)
        : m_from(document),
          m_to(olScene::newDocument()),
          m_fromColors(XCAFDoc_DocumentTool::ColorTool(document->Main())),
          m_shapes(XCAFDoc_DocumentTool::ShapeTool(m_to->Main())),
          m_colors(XCAFDoc_DocumentTool::ColorTool(m_to->Main()))
    {
    }

    [[nodiscard]] olScene::Document take()
    {
        for (XCAFPrs_DocumentExplorer node(m_from, XCAFPrs_DocumentExplorerFlags_OnlyLeafNodes); node.More();
             node.Next())
            add(node.Current());
        return m_to;
    }

private:
    void add(const XCAFPrs_DocumentNode &node)
    {
        const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(node.RefLabel);
        // A copy of its own for each instance: the writer finds colours by shape, and knows one colour of each.
        const TopoDS_Shape body =
            BRepBuilderAPI_Transform(shape, node.Location.Transformation(), Standard_True).Shape();
        const TDF_Label label = m_shapes->AddShape(body, Standard_False);
        name(label, node);
        color(label, node.Style);

        TopTools_IndexedMapOfShape before;
        TopTools_IndexedMapOfShape after;
        TopExp::MapShapes(shape, before);
        TopExp::MapShapes(body, after);
        TDF_LabelSequence pieces;
        XCAFDoc_ShapeTool::GetSubShapes(node.RefLabel, pieces);
        for (const TDF_Label &piece : pieces) {
            const int index = before.FindIndex(XCAFDoc_ShapeTool::GetShape(piece));
            if (index > 0 && index <= after.Extent())
                colorPiece(piece, m_shapes->AddSubShape(label, after(index)));
        }
    }

    /// The name of the instance, else that of its part.
    static void name(const TDF_Label &label, const XCAFPrs_DocumentNode &node)
    {
        Handle(TDataStd_Name) name;
        if (node.Label.FindAttribute(TDataStd_Name::GetID(), name) ||
            node.RefLabel.FindAttribute(TDataStd_Name::GetID(), name))
            TDataStd_Name::Set(label, name->Get());
    }

    void color(const TDF_Label &label, const XCAFPrs_Style &style)
    {
        if (!style.Material().IsNull())
            m_colors->SetColor(label, style.Material()->BaseColor().GetRGB(), XCAFDoc_ColorSurf);
        else if (style.IsSetColorSurf())
            m_colors->SetColor(label, style.GetColorSurf(), XCAFDoc_ColorSurf);
        if (style.IsSetColorCurv())
            m_colors->SetColor(label, style.GetColorCurv(), XCAFDoc_ColorCurv);
    }

    void colorPiece(const TDF_Label &from, const TDF_Label &to)
    {
        for (const XCAFDoc_ColorType kind : {XCAFDoc_ColorGen, XCAFDoc_ColorSurf, XCAFDoc_ColorCurv}) {
            Quantity_Color color;
            if (!to.IsNull() && m_fromColors->GetColor(from, kind, color))
                m_colors->SetColor(to, color, kind);
        }
    }

    olScene::Document m_from;
    olScene::Document m_to;
    Handle(XCAFDoc_ColorTool) m_fromColors;
    Handle(XCAFDoc_ShapeTool) m_shapes;
    Handle(XCAFDoc_ColorTool) m_colors;
};

bool write(const olScene::Document &document, const QString &file, QStringList &)
{
    const olScene::Document bodies = Bodies(document).take();
    IGESControl_Controller::Init();
    Interface_Static::SetCVal("xstep.cascade.unit", "MM");
    // Solids stay solids; else they become loose faces, more of which lose their colour.
    Interface_Static::SetCVal("write.iges.brep.mode", "BRep");
    IGESCAFControl_Writer writer;
    return writer.Transfer(bodies) &&
           writePlainly(file, [&writer](const char *plain) { return bool(writer.Write(plain)); });
}

} // namespace

olModelFormat olIgesFormat()
{
    return {"IGES",
            "IGES",
            {QStringLiteral("iges"), QStringLiteral("igs")},
            olModelFormat::Surfaces | olModelFormat::Curves | olModelFormat::Colors | olModelFormat::Names |
                olModelFormat::UnitAndUp,
            check,
            read,
            write};
}
