#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olModelFormat.h"
#include "Model/olPlainLook.h"

#include <IFSelect_ReturnStatus.hxx>
#include <Interface_InterfaceModel.hxx>
#include <Interface_Static.hxx>
#include <Message_ProgressScope.hxx>
#include <STEPCAFControl_Controller.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <StepBasic_Product.hxx>
#include <StepData_StepModel.hxx>
#include <StepData_UndefinedEntity.hxx>
#include <StepGeom_Curve.hxx>
#include <StepGeom_Direction.hxx>
#include <StepGeom_Pcurve.hxx>
#include <StepGeom_Placement.hxx>
#include <StepGeom_Point.hxx>
#include <StepGeom_Surface.hxx>
#include <StepGeom_Vector.hxx>
#include <StepRepr_DefinitionalRepresentation.hxx>
#include <StepRepr_HArray1OfRepresentationItem.hxx>
#include <StepRepr_PropertyDefinitionRepresentation.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <StepShape_FaceSurface.hxx>
#include <StepShape_ShellBasedSurfaceModel.hxx>
#include <StepShape_SolidModel.hxx>
#include <StepShape_TopologicalRepresentationItem.hxx>
#include <StepVisual_SurfaceStyleUsage.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <Transfer_Binder.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <QFile>

#include <algorithm>
#include <cstddef>
#include <istream>
#include <iterator>
#include <streambuf>
#include <string_view>
#include <utility>
#include <vector>

using namespace olFormatTools;

olModelFormat olStepFormat();

namespace
{

/// Goes through the instances of a file without understanding them: what each is called, and what it refers to. The
/// library crashes over what is not there, and over nesting without end.
class Instances
{
public:
    explicit Instances(const QByteArray &text) : m_at(text.constData()), m_end(text.constData() + text.size()) {}

    olResult<> check()
    {
        while (m_at < m_end && !m_isEnded) {
            const olResult<> checked = statement();
            if (!checked.isOk())
                return checked;
        }
        if (!m_isEnded)
            return cutOff();
        std::sort(m_defined.begin(), m_defined.end());
        for (const auto &[from, to] : m_references) {
            if (!std::binary_search(m_defined.begin(), m_defined.end(), to))
                return olFailure{
                    olReason::tr("the file is damaged: #%1 refers to #%2, which is not there").arg(from).arg(to)};
        }
        return {};
    }

    /// Where the file ends; what comes behind signs it.
    [[nodiscard]] const char *end() const { return m_at; }

private:
    /// Up to the semicolon.
    olResult<> statement()
    {
        constexpr int deepest = 500;
        int depth = 0;
        bool isDefinition = false;
        quint64 number = 0;
        const char *start = nullptr;
        std::string_view keyword;
        for (; m_at < m_end && *m_at != ';'; ++m_at) {
            if (*m_at == '\'') {
                m_at = std::find(m_at + 1, m_end, '\'');
            } else if (*m_at == '/' && m_at + 1 < m_end && m_at[1] == '*') {
                static const char close[] = "*/";
                m_at = std::search(m_at + 2, m_end, close, close + 2) + 1;
            } else if (*m_at == '(') {
                if (++depth > deepest)
                    return olFailure{olReason::tr("the file is damaged: its parentheses are nested too deeply")};
                if (lacksContent(start, keyword))
                    return incomplete(QLatin1Char('#') + QString::number(number));
            } else if (*m_at == ')') {
                --depth;
            } else if (*m_at == '#' && m_at + 1 < m_end && m_at[1] >= '0' && m_at[1] <= '9') {
                const quint64 name = takeNumber();
                isDefinition = isDefinition || !start;
                if (!start)
                    number = name;
                else if (isDefinition)
                    m_references.emplace_back(number, name);
            }
            if (m_at >= m_end)
                return cutOff();
            if (!start && static_cast<unsigned char>(*m_at) > ' ' && *m_at != '/')
                start = m_at;
        }
        if (m_at >= m_end && !start)
            return {};
        if (m_at >= m_end || depth != 0)
            return cutOff();
        if (isDefinition)
            m_defined.push_back(number);
        keyword = start ? std::string_view(start, std::size_t(m_at - start)) : std::string_view();
        m_isEnded = keyword.substr(0, 16) == "END-ISO-10303-21";
        ++m_at;
        return {};
    }

    /// At an opening parenthesis: whether it opens an empty list in the parameters of a kind over which the library
    /// crashes then. What stands before it may be a keyword, which becomes the current one.
    bool lacksContent(const char *start, std::string_view &keyword) const
    {
        static constexpr std::string_view kinds[] = {"ADVANCED_FACE",
                                                     "B_SPLINE_CURVE_WITH_KNOTS",
                                                     "B_SPLINE_SURFACE_WITH_KNOTS",
                                                     "CARTESIAN_POINT",
                                                     "CONNECTED_EDGE_SET",
                                                     "CURVE_BOUNDED_SURFACE",
                                                     "DERIVED_UNIT",
                                                     "DIRECTION",
                                                     "EDGE_BASED_WIREFRAME_MODEL",
                                                     "EDGE_LOOP",
                                                     "FACE_BASED_SURFACE_MODEL",
                                                     "INTERSECTION_CURVE",
                                                     "SEAM_CURVE",
                                                     "SHELL_BASED_SURFACE_MODEL",
                                                     "SURFACE_CURVE",
                                                     "SURFACE_STYLE_RENDERING_WITH_PROPERTIES",
                                                     "TRIMMED_CURVE"};
        const auto isBlank = [](char letter) { return static_cast<unsigned char>(letter) <= ' '; };
        const auto isWord = [](char letter) {
            return (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z') || letter == '_' ||
                   (letter >= '0' && letter <= '9');
        };
        const char *end = m_at;
        while (start && end > start && isBlank(end[-1]))
            --end;
        const char *first = end;
        while (start && first > start && isWord(first[-1]))
            --first;
        if (first < end) {
            keyword = std::string_view(first, std::size_t(end - first));
            return false;
        }
        const char *next = std::find_if_not(m_at + 1, m_end, isBlank);
        return next < m_end && *next == ')' && std::binary_search(std::begin(kinds), std::end(kinds), keyword);
    }

    /// Stays on its last digit.
    quint64 takeNumber()
    {
        quint64 number = 0;
        for (; m_at + 1 < m_end && m_at[1] >= '0' && m_at[1] <= '9'; ++m_at)
            number = 10 * number + quint64(m_at[1] - '0');
        return number;
    }

    const char *m_at;
    const char *m_end;
    bool m_isEnded = false;
    std::vector<quint64> m_defined;
    std::vector<std::pair<quint64, quint64>> m_references;
};

olResult<> check(QFile &file, QStringList &)
{
    if (!file.read(4096).contains("ISO-10303-21"))
        return olFailure{olReason::tr("this is no STEP file")};
    return {};
}

/// The file up to its end without what signs it, in blocks, so that one sees how far the library is.
class Source : public std::streambuf
{
public:
    Source(const char *bytes, std::size_t count, const Message_ProgressRange &progress)
        : m_at(bytes), m_end(bytes + count), m_scope(progress, "File", double(count))
    {
    }

private:
    int_type underflow() override
    {
        constexpr std::ptrdiff_t block = 1 << 18;
        const std::ptrdiff_t count = std::min(block, m_end - m_at);
        if (count <= 0)
            return traits_type::eof();
        auto *start = const_cast<char *>(m_at);
        setg(start, start, start + count);
        m_at += count;
        m_scope.Next(double(count));
        return traits_type::to_int_type(*start);
    }

    const char *m_at;
    const char *m_end;
    Message_ProgressScope m_scope;
};

/// Shapes, all that they are made of, and what gives them a place or a look.
bool mustBeWhole(const Handle(Standard_Transient) & entity)
{
    const Handle(Standard_Type) kinds[] = {STANDARD_TYPE(StepGeom_Curve),
                                           STANDARD_TYPE(StepGeom_Direction),
                                           STANDARD_TYPE(StepGeom_Placement),
                                           STANDARD_TYPE(StepGeom_Point),
                                           STANDARD_TYPE(StepGeom_Surface),
                                           STANDARD_TYPE(StepGeom_Vector),
                                           STANDARD_TYPE(StepRepr_DefinitionalRepresentation),
                                           STANDARD_TYPE(StepRepr_PropertyDefinitionRepresentation),
                                           STANDARD_TYPE(StepShape_SolidModel),
                                           STANDARD_TYPE(StepShape_TopologicalRepresentationItem),
                                           STANDARD_TYPE(StepVisual_SurfaceStyleUsage)};
    return std::any_of(std::begin(kinds), std::end(kinds),
                       [&entity](const Handle(Standard_Type) & kind) { return entity->IsKind(kind); });
}

/// A curve on a surface which says that it is there, but not as a curve; over that the library crashes. Null for none.
Handle(StepGeom_Pcurve) curveWithoutCurve(const Handle(Interface_InterfaceModel) & model)
{
    for (int number = 1; number <= model->NbEntities(); ++number) {
        const Handle(StepGeom_Pcurve) onSurface = Handle(StepGeom_Pcurve)::DownCast(model->Value(number));
        if (onSurface.IsNull())
            continue;
        const Handle(StepRepr_DefinitionalRepresentation) definition = onSurface->ReferenceToCurve();
        const bool hasItems = !definition.IsNull() && !definition->Items().IsNull() && definition->NbItems() > 0;
        if (!hasItems || Handle(StepGeom_Curve)::DownCast(definition->ItemsValue(1)).IsNull())
            return onSurface;
    }
    return {};
}

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
            if (!isNumbered || !XCAFDoc_ShapeTool::GetReferredShape(component, target))
                continue;
            if (target.FindAttribute(TDataStd_Name::GetID(), referred))
                own->Set(referred->Get());
            else
                component.ForgetAttribute(own);
        }
    }
}

/// What the library tried to take over, and could not.
void remarkLost(const STEPCAFControl_Reader &reader, QStringList &remarks)
{
    const Handle(Transfer_TransientProcess) &process = reader.Reader().WS()->TransferReader()->TransientProcess();
    int faces = 0;
    QStringList bodies;
    const Handle(Interface_InterfaceModel) model = reader.Reader().WS()->Model();
    const auto numbered = [&model](const Handle(Standard_Transient) & entity) {
        return QLatin1Char('#') + QString::number(model->Number(entity));
    };
    for (int index = 1; index <= process->NbMapped(); ++index) {
        const Handle(Standard_Transient) &entity = process->Mapped(index);
        const Handle(Transfer_Binder) binder = process->MapItem(index);
        if (!binder.IsNull() && binder->HasResult())
            continue;
        faces += int(entity->IsKind(STANDARD_TYPE(StepShape_FaceSurface)));
        if (entity->IsKind(STANDARD_TYPE(StepShape_SolidModel)) ||
            entity->IsKind(STANDARD_TYPE(StepShape_ShellBasedSurfaceModel))) {
            const Handle(TCollection_HAsciiString) name = Handle(StepRepr_RepresentationItem)::DownCast(entity)->Name();
            bodies << (name.IsNull() || name->IsEmpty() ? numbered(entity) : QString::fromUtf8(name->ToCString()));
        }
    }
    // Not every version of the library knows bodies of triangles.
    for (int index = 1; index <= model->NbEntities(); ++index) {
        const Handle(StepData_UndefinedEntity) unknown =
            Handle(StepData_UndefinedEntity)::DownCast(model->Value(index));
        const std::string_view kind = unknown.IsNull() ? std::string_view() : unknown->StepType();
        if (kind == "TESSELLATED_SOLID" || kind == "TESSELLATED_SHELL")
            bodies << numbered(unknown);
    }
    if (faces > 0)
        remarks << olReason::tr("Faces that cannot be understood and are left out: %1.").arg(faces);
    if (!bodies.isEmpty())
        remarks << olReason::tr("Bodies that cannot be understood and are left out: %1.").arg(listed(bodies));
}

olResult<> read(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress,
                QStringList &remarks)
{
    STEPCAFControl_Controller::Init();
    Interface_Static::SetCVal("xstep.cascade.unit", "MM");
    STEPCAFControl_Reader reader;
    reader.SetColorMode(Standard_True);
    reader.SetNameMode(Standard_True);
    reader.SetLayerMode(Standard_True);
    reader.SetSHUOMode(Standard_True);
    reader.SetMatMode(Standard_True);
    QFile file(job.fileToRead());
    const uchar *bytes = file.open(QIODevice::ReadOnly) ? file.map(0, file.size()) : nullptr;
    if (!bytes)
        return olFailure{file.errorString()};
    const QByteArray text = QByteArray::fromRawData(reinterpret_cast<const char *>(bytes), int(file.size()));
    Instances instances(text);
    if (const olResult<> checked = instances.check(); !checked.isOk())
        return checked;
    Message_ProgressScope scope(progress, "STEP", 10);
    Source source(text.constData(), std::size_t(instances.end() - text.constData()), scope.Next(2));
    std::istream stream(&source);
    if (reader.ChangeReader().ReadStream(path(job.fileToRead()).ToCString(), stream) != IFSelect_RetDone)
        return damaged();
    const Handle(Interface_InterfaceModel) &model = reader.Reader().WS()->Model();
    if (const olResult<> whole = checkEntities(model, mustBeWhole, remarks); !whole.isOk())
        return whole;
    if (const Handle(StepGeom_Pcurve) odd = curveWithoutCurve(model); !odd.IsNull())
        return incomplete(QString::fromLatin1(model->StringLabel(odd)->ToCString()));
    olScene::Document target = document;
    if (!reader.Transfer(target, scope.Next(8)))
        return untaken();
    nameNumberedInstances(document);
    remarkLost(reader, remarks);
    return {};
}

/// The writer falls over an instance with a look of its own whose part has none.
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

/// The library would have all bear its own name that have none.
constexpr char noName[] = "\x01";

void removeMadeUpNames(const Handle(Interface_InterfaceModel) & model)
{
    const Handle(TCollection_HAsciiString) empty = new TCollection_HAsciiString;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        const Handle(StepBasic_Product) product = Handle(StepBasic_Product)::DownCast(model->Value(number));
        if (product.IsNull() || product->Name().IsNull() || product->Name()->Search(noName) != 1)
            continue;
        product->SetId(empty);
        product->SetName(empty);
    }
}

/// Of a document of its own, whose looks it completes.
bool write(const olScene::Document &document, const QString &file, QStringList &)
{
    colorBareParts(document);
    STEPCAFControl_Controller::Init();
    Interface_Static::SetCVal("xstep.cascade.unit", "MM");
    Interface_Static::SetCVal("write.step.unit", "MM");
    Interface_Static::SetCVal("write.step.product.name", noName);
    STEPCAFControl_Writer writer;
    if (!writer.Transfer(document, STEPControl_AsIs))
        return false;
    removeMadeUpNames(writer.ChangeWriter().Model());
    return writePlainly(file, [&writer](const char *plain) { return writer.Write(plain) == IFSelect_RetDone; });
}

} // namespace

olModelFormat olStepFormat()
{
    return {"STEP",
            "STEP",
            {QStringLiteral("step"), QStringLiteral("stp")},
            olModelFormat::Surfaces | olModelFormat::Curves | olModelFormat::Colors | olModelFormat::Opacity |
                olModelFormat::Structure | olModelFormat::Names | olModelFormat::Substances | olModelFormat::Layers |
                olModelFormat::Hidden | olModelFormat::UnitAndUp,
            check,
            read,
            write};
}
