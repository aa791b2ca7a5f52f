#include "Exchange/olReadModel.h"

#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olImportFileCheck.h"
#include "Exchange/olModelFormat.h"
#include "Exchange/olPartChanges.h"
#include "Exchange/olTextures.h"
#include "Model/olDocumentCopy.h"
#include "Model/olLibraryMessages.h"
#include "Model/olMeshTools.h"
#include "Model/olPlainLook.h"
#include "Model/olTriangles.h"
#include "State/olListed.h"
#include "State/olResult.h"

#include <BRepBndLib.hxx>
#include <BRepTools_ReShape.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <Bnd_Box.hxx>
#include <Message_ProgressScope.hxx>
#include <Poly_Triangulation.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <Standard_Failure.hxx>
#include <TDF_LabelIndexedMap.hxx>
#include <TDF_LabelMap.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_LayerTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XCAFDoc_VisMaterial.hxx>
#include <XCAFDoc_VisMaterialTool.hxx>
#include <gp.hxx>
#include <gp_Ax1.hxx>
#include <gp_Vec.hxx>

#include <QCoreApplication>
#include <QPair>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>
#include <sstream>
#include <vector>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olImport)
};

/// Applies the options of the import to what the reader left.
class Treatment
{
public:
    Treatment(const olImportJob &job, const olScene::Document &raw, QStringList &remarks)
        : m_job(job),
          m_raw(raw),
          m_remarks(remarks),
          m_colors(XCAFDoc_DocumentTool::ColorTool(raw->Main())),
          m_layers(XCAFDoc_DocumentTool::LayerTool(raw->Main())),
          m_shapes(XCAFDoc_DocumentTool::ShapeTool(raw->Main()))
    {
    }

    [[nodiscard]] olScene::Document run(const Message_ProgressRange &progress)
    {
        Message_ProgressScope whole(progress, nullptr, 2);
        prepare(whole.Next());
        Message_ProgressScope scope(whole.Next(), "Parts", partCount());
        olDocumentCopy copy;
        copy.keepEmptyGroups = !m_job.options.removeEmptyGroups;
        copy.isWanted = [this](const TDF_Label &instance) {
            const bool isWanted = !XCAFDoc_ShapeTool::IsReference(instance) || m_job.options.importInvisibleInstances ||
                                  m_colors->IsVisible(instance);
            m_hasLostInstances = m_hasLostInstances || !isWanted;
            if (!isWanted)
                m_leftOut << olShownNameOf(instance);
            return isWanted;
        };
        copy.changePart = [this, &scope](const TDF_Label &label, olChangedPart &part) {
            change(label, part, scope.Next());
        };
        const olScene::Document treated = copy.copy(m_raw);
        tell();
        return treated;
    }

    /// What the options say that took something away, each once.
    [[nodiscard]] QString refusals() const
    {
        const olImportRecord &options = m_job.options;
        const QVector<QPair<bool, QString>> all{
            {m_hasLost.surfaces, options.importSurfaces ? Words::tr("no invisible surfaces are imported")
                                                        : Words::tr("no surfaces are imported")},
            {m_hasLost.meshes, options.importMeshes ? Words::tr("no invisible meshes are imported")
                                                    : Words::tr("no meshes are imported")},
            {m_hasLost.curves, options.importCurves ? Words::tr("no invisible curves are imported")
                                                    : Words::tr("no curves are imported")},
            {m_hasLostInstances, Words::tr("no invisible instances are imported")},
        };
        QStringList texts;
        for (const auto &[isOne, text] : all) {
            if (isOne)
                texts << text;
        }
        return olListed(texts);
    }

private:
    /// What is done to all parts at once, on all processors: they are checked, and get their triangles. Where an option
    /// changes the shape of one, that is done again for it.
    void prepare(const Message_ProgressRange &progress)
    {
        std::vector<TDF_Label> parts;
        std::vector<TopoDS_Shape> shapes;
        TDF_LabelSequence labels;
        m_shapes->GetShapes(labels);
        for (const TDF_Label &label : labels) {
            if (!XCAFDoc_ShapeTool::IsSimpleShape(label) || !wantedOf(label).surfaces)
                continue;
            parts.push_back(label);
            shapes.push_back(XCAFDoc_ShapeTool::GetShape(label));
        }
        constexpr double checking = 1;
        constexpr double meshing = 4;
        Message_ProgressScope scope(progress, nullptr, checking + meshing);
        if (m_job.verify || m_job.optimize) {
            const std::vector<char> sound = olPartChanges::areSound(shapes, scope.Next(checking));
            for (std::size_t index = 0; index < parts.size(); ++index) {
                if (!sound[index])
                    m_unsound.Add(parts[index]);
            }
        }
        olTriangles::mesh(shapes, fineness(), scope.Next(meshing));
    }

    /// One remark for all of a kind.
    void tell() const
    {
        if (!m_faulty.isEmpty())
            m_remarks << Words::tr("Parts with faulty surfaces: %1.").arg(olFormatTools::listed(m_faulty));
        if (!m_heldBack.isEmpty())
            m_remarks << Words::tr("Gaps of up to %1 mm were to be closed, which would distort these; smaller ones are "
                                   "closed: %2.")
                             .arg(m_job.options.stitchingTolerance)
                             .arg(olFormatTools::listed(m_heldBack));
        if (!m_apart.isEmpty())
            m_remarks << Words::tr("Parts whose faces are not joined, as that would distort them: %1.")
                             .arg(olFormatTools::listed(m_apart));
        if (!m_leftOut.isEmpty())
            m_remarks
                << Words::tr("Parts that the import options leave out: %1.").arg(olFormatTools::listed(m_leftOut));
        if (!m_undrawn.isEmpty())
            m_remarks << Words::tr("Faces that cannot be drawn: %1.").arg(olFormatTools::listed(m_undrawn));
    }

    [[nodiscard]] int partCount() const
    {
        TDF_LabelSequence labels;
        m_shapes->GetShapes(labels);
        return qMax(1, labels.Length());
    }

    [[nodiscard]] bool isVisible(const TDF_Label &label) const
    {
        if (!m_colors->IsVisible(label))
            return false;
        TDF_LabelSequence layers;
        m_layers->GetLayers(label, layers);
        return std::all_of(layers.begin(), layers.end(),
                           [this](const TDF_Label &layer) { return m_layers->IsVisible(layer); });
    }

    [[nodiscard]] olPartChanges::Kinds wantedOf(const TDF_Label &label) const
    {
        const olImportRecord &options = m_job.options;
        const bool visible = isVisible(label);
        return {options.importSurfaces && (visible || options.importInvisibleSurfaces),
                options.importMeshes && (visible || options.importInvisibleMeshes),
                options.importCurves && (visible || options.importInvisibleCurves)};
    }

    void change(const TDF_Label &label, olChangedPart &part, const Message_ProgressRange &progress)
    {
        const olImportRecord &options = m_job.options;
        const olPartChanges::Kinds wanted = wantedOf(label);
        const olPartChanges::Kinds there = olPartChanges::kindsOf(part.shape);
        m_hasLost.surfaces = m_hasLost.surfaces || (there.surfaces && !wanted.surfaces);
        m_hasLost.meshes = m_hasLost.meshes || (there.meshes && !wanted.meshes);
        m_hasLost.curves = m_hasLost.curves || (there.curves && !wanted.curves);
        olPartChanges::keepOnly(part, wanted);
        if (part.shape.IsNull()) {
            if (there.surfaces || there.meshes || there.curves)
                m_leftOut << olShownNameOf(label);
            return;
        }
        bool isAsPrepared = part.changes.empty();
        if ((m_job.verify || m_job.optimize) &&
            !(isAsPrepared ? !m_unsound.Contains(label) : olPartChanges::isSound(part.shape))) {
            if (m_job.verify)
                m_faulty << olShownNameOf(label);
            if (m_job.optimize)
                olPartChanges::repair(part);
        }
        constexpr double meshing = 1;
        constexpr double stitching = 2;
        Message_ProgressScope scope(progress, nullptr, stitching + meshing);
        if (options.stitching && stitch(label, part, scope.Next(stitching)))
            isAsPrepared = false;
        if (m_job.verify)
            dropDegenerate(part.shape);
        if (options.mergeGeometries)
            olPartChanges::mergeMeshes(part, [this](const TopoDS_Shape &face) { return lookOf(face); });
        if (options.unifySurfaceNormals)
            olPartChanges::unifyNormals(part);
        if (!isAsPrepared || !part.changes.empty())
            olTriangles::mesh(part.shape, fineness(), scope.Next(meshing));
        sharpen(part.shape, options.unifySurfaceNormals);
        const int missing = facesWithoutTriangles(part.shape);
        if (missing > 0)
            m_undrawn << Words::tr("%1 of %2").arg(missing).arg(olShownNameOf(label));
        if (!options.keepSurfaceData)
            olPartChanges::dropSurfaces(part);
    }

    /// Sewing may rebuild faces so that their colours would have nowhere to go; then the part stays as it was read.
    /// Whether it, or what it has in common with what was tried, needs its triangles anew.
    bool stitch(const TDF_Label &label, olChangedPart &part, const Message_ProgressRange &progress)
    {
        // As it is, and what comes of each of a few tolerances: with many more triangles where that is bad.
        constexpr double trials = 4;
        Message_ProgressScope scope(progress, nullptr, trials);
        bool isAnythingTried = false;
        olChangedPart stitched = part;
        const double wanted = m_job.options.stitchingTolerance;
        const double used = olPartChanges::stitch(stitched, wanted, [&](const TopoDS_Shape &shape, unsigned most) {
            isAnythingTried = true;
            return olTriangles::mesh(shape, fineness(), most, scope.Next());
        });
        if (used < wanted && used > 0)
            m_heldBack << Words::tr("%1 (%2 mm)").arg(olShownNameOf(label)).arg(used);
        else if (used < wanted)
            m_apart << olShownNameOf(label);
        TopTools_IndexedMapOfShape pieces;
        TopExp::MapShapes(stitched.shape, pieces);
        TDF_LabelSequence labels;
        XCAFDoc_ShapeTool::GetSubShapes(label, labels);
        for (const TDF_Label &piece : labels) {
            if (!pieces.Contains(stitched.follow(XCAFDoc_ShapeTool::GetShape(piece))))
                return isAnythingTried;
        }
        part = stitched;
        return isAnythingTried;
    }

    /// Without tessellation values of its own an import goes by the usual ones.
    [[nodiscard]] olTriangles::Fineness fineness() const
    {
        if (!m_job.options.tessellation)
            return {};
        return {m_job.options.chordDeviation, m_job.options.normalTolerance};
    }

    /// Meshes that say nothing of their normals are smooth where they are nearly so.
    static void sharpen(const TopoDS_Shape &shape, bool isUnified)
    {
        eachMesh(shape, [isUnified](const TopoDS_Face &face, const Handle(Poly_Triangulation) & mesh) {
            if (!mesh->HasNormals())
                BRep_Builder().UpdateFace(face, olMeshTools::withNormals(mesh, olMeshTools::usualCrease, isUnified));
        });
    }

    static int facesWithoutTriangles(const TopoDS_Shape &shape)
    {
        int missing = 0;
        for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next()) {
            TopLoc_Location location;
            if (BRep_Tool::Triangulation(TopoDS::Face(faces.Current()), location).IsNull())
                ++missing;
        }
        return missing;
    }

    /// Triangles that have no surface.
    template <class Visitor> static void eachMesh(const TopoDS_Shape &shape, const Visitor &visit)
    {
        for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next()) {
            const TopoDS_Face &face = TopoDS::Face(faces.Current());
            TopLoc_Location location;
            const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(face, location);
            if (!mesh.IsNull() && BRep_Tool::Surface(face, location).IsNull())
                visit(face, mesh);
        }
    }

    static void dropDegenerate(const TopoDS_Shape &shape)
    {
        eachMesh(shape, [](const TopoDS_Face &face, const Handle(Poly_Triangulation) & mesh) {
            const Handle(Poly_Triangulation) cleaned = olMeshTools::withoutDegenerate(mesh);
            if (!cleaned.IsNull() && cleaned != mesh)
                BRep_Builder().UpdateFace(face, cleaned);
        });
    }

    [[nodiscard]] std::string lookOf(const TopoDS_Shape &face) const
    {
        std::ostringstream look;
        for (const XCAFDoc_ColorType kind : {XCAFDoc_ColorGen, XCAFDoc_ColorSurf}) {
            Quantity_ColorRGBA color;
            if (m_colors->GetColor(face, kind, color))
                look << color.GetRGB().Red() << ' ' << color.GetRGB().Green() << ' ' << color.GetRGB().Blue() << ' '
                     << color.Alpha();
            look << ';';
        }
        const Handle(XCAFDoc_VisMaterialTool) materials = XCAFDoc_DocumentTool::VisMaterialTool(m_raw->Main());
        look << materials->GetShapeMaterial(face).get();
        return look.str();
    }

    const olImportJob &m_job;
    olScene::Document m_raw;
    QStringList &m_remarks;
    Handle(XCAFDoc_ColorTool) m_colors;
    Handle(XCAFDoc_LayerTool) m_layers;
    Handle(XCAFDoc_ShapeTool) m_shapes;
    TDF_LabelMap m_unsound;
    olPartChanges::Kinds m_hasLost{false, false, false};
    bool m_hasLostInstances = false;
    QStringList m_faulty;
    QStringList m_heldBack;
    QStringList m_apart;
    QStringList m_undrawn;
    QStringList m_leftOut;
};

Bnd_Box boundsOf(const olScene::Document &document)
{
    TDF_LabelSequence labels;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(labels);
    Bnd_Box box;
    for (const TDF_Label &label : labels)
        BRepBndLib::Add(XCAFDoc_ShapeTool::GetShape(label), box);
    box.SetGap(0);
    return box;
}

/// Whether the triangles that were read can be worked with.
bool isWhole(const olScene::Document &document)
{
    TDF_LabelSequence labels;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetShapes(labels);
    TopLoc_Location location;
    for (const TDF_Label &label : labels) {
        for (TopExp_Explorer faces(XCAFDoc_ShapeTool::GetShape(label), TopAbs_FACE); faces.More(); faces.Next()) {
            const Handle(Poly_Triangulation) mesh = BRep_Tool::Triangulation(TopoDS::Face(faces.Current()), location);
            if (!mesh.IsNull() && !olMeshTools::isWhole(mesh))
                return false;
        }
    }
    return true;
}

/// How often parts stand in the document, however they are nested. A few lines can say what no machine can draw.
class Instances
{
public:
    explicit Instances(const olScene::Document &document)
    {
        TDF_LabelSequence labels;
        XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(labels);
        for (const TDF_Label &label : labels)
            m_count += countOf(label);
    }

    [[nodiscard]] double count() const { return m_count; }

private:
    double countOf(const TDF_Label &label)
    {
        TDF_Label referred;
        if (XCAFDoc_ShapeTool::GetReferredShape(label, referred))
            return countOf(referred);
        if (!XCAFDoc_ShapeTool::IsAssembly(label))
            return 1;
        if (const int known = m_known.FindIndex(label))
            return m_counts[std::size_t(known - 1)];
        // What stands in itself would be counted for ever.
        const int index = m_known.Add(label);
        m_counts.push_back(std::numeric_limits<double>::infinity());
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(label, components);
        double count = 0;
        for (const TDF_Label &component : components)
            count += countOf(component);
        m_counts[std::size_t(index - 1)] = count;
        return count;
    }

    TDF_LabelIndexedMap m_known;
    std::vector<double> m_counts;
    double m_count = 0;
};

bool hasGeometry(const olScene::Document &document) { return !boundsOf(document).IsVoid(); }

/// The centre goes to the origin, and what stands on the ground begins at height 0.
olScene::Document placed(const olScene::Document &document, const olImportJob &job)
{
    if (!job.centerInOrigin && !job.putOnGround)
        return document;
    const Bnd_Box box = boundsOf(document);
    const gp_Pnt low = box.CornerMin();
    const gp_Pnt high = box.CornerMax();
    gp_Vec offset;
    if (job.centerInOrigin)
        offset = gp_Vec(-(low.X() + high.X()) / 2, -(low.Y() + high.Y()) / 2, -(low.Z() + high.Z()) / 2);
    if (job.putOnGround)
        offset.SetZ(-low.Z());
    if (offset.Magnitude() == 0)
        return document;
    olDocumentCopy copy;
    copy.placement.SetTranslation(offset);
    return copy.copy(document);
}

/// In millimetres and with z up, where the format leaves open how its numbers are meant.
olScene::Document interpreted(const olScene::Document &raw, const olImportJob &job, const olModelFormat &format)
{
    const bool isScaled = std::isfinite(job.unit) && job.unit > 0 && job.unit != 1.0;
    if (format.holds(olModelFormat::UnitAndUp) || (!isScaled && !job.isYUp))
        return raw;
    olDocumentCopy copy;
    if (job.isYUp)
        copy.placement.SetRotation(gp::OX(), M_PI_2);
    if (isScaled) {
        copy.scale = job.unit;
        copy.changePart = [&job](const TDF_Label &, olChangedPart &part) { olPartChanges::scale(part, job.unit); };
    }
    return copy.copy(raw);
}

olResult<olScene::Document> readAndTreat(const olImportJob &job, const olModelFormat &format, QStringList &remarks,
                                         const Message_ProgressRange &progress)
{
    constexpr double readingShare = 60;
    constexpr double treatmentShare = 40;
    Message_ProgressScope scope(progress, "Import", readingShare + treatmentShare);
    const olScene::Document file = olScene::newDocument();
    const olResult<> read = format.read(job, file, scope.Next(readingShare), remarks);
    if (!read.isOk())
        return olFailure{read.error()};
    constexpr double mostInstances = 1e6;
    if (Instances(file).count() > mostInstances)
        return olFailure{Words::tr("it has more than a million parts")};
    if (!isWhole(file))
        return olFailure{
            Words::tr("the file is damaged: it has triangles without their points, or points beyond all measure")};
    const olScene::Document raw = interpreted(file, job, format);
    if (!hasGeometry(raw))
        return olFailure{Words::tr("there is no geometry in it")};
    olFindTextures(job, raw, remarks);
    olPlainLook::addTo(raw);

    Treatment treatment(job, raw, remarks);
    const olScene::Document treated = treatment.run(scope.Next(treatmentShare));
    if (!hasGeometry(treated))
        return olFailure{Words::tr("the import options leave nothing of it (%1)").arg(treatment.refusals())};
    return placed(treated, job);
}

olResult<olScene::Document> attempt(const olImportJob &job, const olModelFormat &format, QStringList &remarks,
                                    const Message_ProgressRange &progress)
{
    try {
        const olResult<> checked = olImportFileCheck(job.file, format, remarks);
        if (!checked.isOk())
            return olFailure{checked.error()};
        return readAndTreat(job, format, remarks, progress);
    } catch (const Standard_Failure &failure) {
        return olFailure{Words::tr("the reader failed (%1)").arg(QString::fromUtf8(failure.DynamicType()->Name()))};
    } catch (const std::bad_alloc &) {
        return olFailure{Words::tr("there is not enough memory for it")};
    } catch (const std::exception &failure) {
        return olFailure{Words::tr("the reader failed (%1)").arg(QString::fromLocal8Bit(failure.what()))};
    }
}

} // namespace

olImportResult olReadModel(const olImportJob &job, const Message_ProgressRange &progress)
{
    olSilenceLibrary();
    olImportResult result;
    if (const olModelFormat *format = olModelFormat::ofFile(job.file))
        result.document = attempt(job, *format, result.remarks, progress);
    else
        result.document = olFormatTools::damaged();
    return result;
}
