#include "View/olSceneView.h"

#include "Model/olLibraryMessages.h"
#include "State/olHostState.h"
#include "View/olCornerMarks.h"
#include "View/olGlBinding.h"
#include "View/olGradient.h"
#include "View/olNavigator.h"
#include "View/olPart.h"
#include "View/olRenderQuality.h"
#include "View/olStateInPicture.h"
#include "View/olViewAids.h"
#include "View/olViewLights.h"

#include <QCoreApplication>

#include <AIS_InteractiveContext.hxx>
#include <AIS_ViewCube.hxx>
#include <Graphic3d_GraphicDriver.hxx>
#include <Graphic3d_Texture2D.hxx>
#include <Prs3d_Drawer.hxx>
#include <Prs3d_LineAspect.hxx>
#include <SelectMgr_ViewerSelector.hxx>
#include <StdSelect_ViewerSelector3d.hxx>
#include <TDocStd_Document.hxx>
#include <V3d_View.hxx>
#include <V3d_Viewer.hxx>
#include <XCAFPrs_DocumentExplorer.hxx>

#include <algorithm>
#include <cmath>
#include <set>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olSceneView)
};

// Beyond these the projection degenerates.
constexpr double smallestAngle = 1.0;
constexpr double largestAngle = 170.0;

constexpr double fitMargin = 0.08;
constexpr double wireWidth = 1.5;

/// With so many triangles all parts together are drawn while speed counts; smaller ones stay as they are.
constexpr double coarseTriangles = 100000;
constexpr unsigned largePart = 2000;

Quantity_Color colorOf(const osg::Color3f &color)
{
    const auto channel = [](float value) { return std::clamp(double(value), 0.0, 1.0); };
    return {channel(color.red()), channel(color.green()), channel(color.blue()), Quantity_TOC_sRGB};
}

Handle(Prs3d_Drawer) wireStyle(const osg::Color3f &color, Graphic3d_ZLayerId layer)
{
    const Handle(Prs3d_Drawer) style = new Prs3d_Drawer();
    const Quantity_Color shown = colorOf(color);
    const auto line = [&shown] { return new Prs3d_LineAspect(shown, Aspect_TOL_SOLID, wireWidth); };
    style->SetColor(shown);
    style->SetDisplayMode(AIS_WireFrame);
    style->SetZLayer(layer);
    style->SetWireAspect(line());
    style->SetLineAspect(line());
    style->SetFaceBoundaryAspect(line());
    style->SetFreeBoundaryAspect(line());
    style->SetUnFreeBoundaryAspect(line());
    return style;
}

std::string idOf(const olPart &part)
{
    std::string id = part.id().ToCString();
    if (part.selectedLevel)
        id += '#' + std::to_string(*part.selectedLevel);
    return id;
}

Graphic3d_Camera::Projection projectionFor(olSceneView::Eye eye)
{
    switch (eye) {
    case olSceneView::Eye::Left:
        return Graphic3d_Camera::Projection_MonoLeftEye;
    case olSceneView::Eye::Right:
        return Graphic3d_Camera::Projection_MonoRightEye;
    default:
        return Graphic3d_Camera::Projection_Perspective;
    }
}

bool isSane(float nearest, float farthest)
{
    return std::isfinite(nearest) && std::isfinite(farthest) && nearest > 0.0f && farthest > nearest;
}

} // namespace

class olSceneView::Private
{
public:
    void showParts(const olScene::Document &document, const QSet<QString> &hidden);
    void showPart(const Handle(olPart) & part, bool shown);
    void measure();
    void chooseLevels();
    bool chooseLevel(const Handle(olPart) & part, int height);
    void applyBackground();
    void applyFieldOfView();
    void applyCamera();
    void applySelectionStyle();
    void applyParts();
    void makeSelectable();
    void showSelection();
    void showCoarse(bool coarse) const;
    void setPixelRatio(double ratio) const;
    [[nodiscard]] olRenderQuality::Conditions conditions(bool isMoving, bool isCoarse = false) const;
    [[nodiscard]] Bnd_Box boxOf(const std::vector<Handle(olPart)> &some) const;
    [[nodiscard]] Handle(Graphic3d_Camera) fitted(const Bnd_Box &box) const;

    Handle(V3d_Viewer) viewer;
    Handle(V3d_View) view;
    Handle(AIS_InteractiveContext) context;
    std::unique_ptr<olViewLights> lights;
    std::unique_ptr<olViewAids> aids;
    Handle(olCornerMarks) marks;
    std::vector<Handle(olPart)> parts;
    std::vector<Handle(olPart)> selected;
    std::vector<Handle(olPart)> highlighted;
    Bnd_Box box;
    std::vector<osg::Color3f> shownColors;
    std::vector<float> shownPositions;
    int shownRows = 0;
    bool isZUp = true;
    bool isRaytraced = false;
    bool hasEdges = false;
    bool hasTransparency = false;
    double triangles = 0;
};

olSceneView::olSceneView() : d(std::make_unique<Private>()) {}

olSceneView::~olSceneView()
{
    if (!d->context.IsNull())
        d->context->RemoveAll(Standard_False);
    if (!d->view.IsNull())
        d->view->Remove();
}

std::unique_ptr<olSceneView> olSceneView::create(quintptr window, const QSize &size, QString &error)
{
    olSilenceLibrary();
    const Handle(Graphic3d_GraphicDriver) driver = olGlBinding::makeDriver();
    if (driver.IsNull()) {
        error = Words::tr("The 3D view needs an X display.");
        return nullptr;
    }
    std::unique_ptr<olSceneView> made(new olSceneView);
    Private &d = *made->d;
    d.viewer = new V3d_Viewer(driver);
    d.view = d.viewer->CreateView();
    d.view->SetImmediateUpdate(Standard_False);
    if (!olGlBinding::attach(d.view, window, size)) {
        error = Words::tr("The OpenGL context of this display cannot be used for the 3D view.");
        return nullptr;
    }
    d.view->Camera()->SetProjectionType(Graphic3d_Camera::Projection_Perspective);
    d.context = new AIS_InteractiveContext(d.viewer);
    d.context->DefaultDrawer()->SetAutoTriangulation(Standard_False);
    d.context->SetDisplayMode(AIS_Shaded, Standard_False);
    d.lights = std::make_unique<olViewLights>(d.viewer);
    d.aids = std::make_unique<olViewAids>(d.context);
    d.marks = new olCornerMarks();
    d.isZUp = olHostState::the().cameraZUp;
    made->applyState(olStateInPicture::All);
    made->resetCamera();
    return made;
}

void olSceneView::setDocument(const olScene::Document &document, const QSet<QString> &hidden)
{
    d->showParts(document, hidden);
    d->applyParts();
    resetCamera();
}

void olSceneView::setHidden(const QSet<QString> &hidden)
{
    d->context->ClearDetected(Standard_False);
    for (const Handle(olPart) & part : d->parts)
        d->showPart(part, !hidden.contains(QString::fromLatin1(part->id().ToCString())));
    d->measure();
    d->applyParts();
    d->showSelection();
}

void olSceneView::Private::showPart(const Handle(olPart) & part, bool shown)
{
    if (shown == bool(context->IsDisplayed(part)))
        return;
    part->writesDepth.reset();
    part->isSelectable = false;
    part->isCoarse = false;
    if (shown)
        context->Display(part, olPart::displayModeOf(part->shownLevel), -1, Standard_False);
    else
        context->Erase(part, Standard_False);
}

void olSceneView::Private::measure()
{
    std::vector<Handle(olPart)> shown;
    for (const Handle(olPart) & part : parts) {
        if (context->IsDisplayed(part))
            shown.push_back(part);
    }
    box = boxOf(shown);
    triangles = 0;
    for (const Handle(olPart) & part : shown)
        triangles += part->triangles();
    hasTransparency = std::any_of(shown.begin(), shown.end(), [](const auto &part) { return part->isTransparent(); });
}

void olSceneView::Private::showParts(const olScene::Document &document, const QSet<QString> &hidden)
{
    context->ClearDetected(Standard_False);
    for (const Handle(olPart) & part : parts)
        context->Remove(part, Standard_False);
    parts.clear();
    selected.clear();
    highlighted.clear();

    std::vector<TopLoc_Location> joints;
    for (XCAFPrs_DocumentExplorer explorer(document, XCAFPrs_DocumentExplorerFlags_OnlyLeafNodes); explorer.More();
         explorer.Next()) {
        const XCAFPrs_DocumentNode &node = explorer.Current();
        const Handle(olPart) part = new olPart(node);
        part->setEdges(hasEdges);
        const bool shown = !hidden.contains(QString::fromLatin1(node.Id.ToCString()));
        showPart(part, shown);
        parts.push_back(part);
        if (shown && !node.Location.IsIdentity())
            joints.push_back(node.Location);
    }
    measure();
    lights->placeLamp(box);
    aids->setScene(box, lights->lamp(), joints);
    showSelection();
}

Bnd_Box olSceneView::Private::boxOf(const std::vector<Handle(olPart)> &some) const
{
    Bnd_Box all;
    for (const Handle(olPart) & part : some) {
        Bnd_Box one;
        part->BoundingBox(one);
        all.Add(one);
    }
    return all;
}

void olSceneView::applyState(unsigned parts)
{
    if (parts & olStateInPicture::Camera)
        d->applyCamera();
    if (parts & olStateInPicture::Lights)
        d->lights->apply();
    if (parts & olStateInPicture::Hovering)
        d->applySelectionStyle();
    if (parts & olStateInPicture::Solidity)
        d->applyParts();
    if (parts & olStateInPicture::Selection)
        d->showSelection();
}

void olSceneView::Private::applyBackground()
{
    const olHostState &state = olHostState::the();
    const std::vector<osg::Color3f> &colors = state.backgroundColors;
    const std::vector<float> &positions = state.backgroundPositions;
    const auto isSame = [](const osg::Color3f &left, const osg::Color3f &right) {
        return left.red() == right.red() && left.green() == right.green() && left.blue() == right.blue();
    };
    int width = 0;
    int height = 0;
    view->Window()->Size(width, height);
    height = std::max(height, 1);
    if (shownRows == height && shownPositions == positions &&
        std::equal(colors.begin(), colors.end(), shownColors.begin(), shownColors.end(), isSame))
        return;
    view->SetBackgroundImage(olGradient(colors, positions).texture(height), Aspect_FM_STRETCH, Standard_False);
    shownColors = colors;
    shownPositions = positions;
    shownRows = height;
}

void olSceneView::Private::applyFieldOfView()
{
    const olHostState &state = olHostState::the();
    if (!std::isfinite(state.fov.get()))
        return;
    const Handle(Graphic3d_Camera) &camera = view->Camera();
    const double upright = std::clamp(double(state.fov), smallestAngle, largestAngle);
    // The renderer takes it for the angle across the shorter side.
    const double narrow = std::min(camera->Aspect(), 1.0);
    const double angle = 2.0 * std::atan(std::tan(upright * M_PI / 360.0) * narrow) * 180.0 / M_PI;
    camera->SetFOVy(std::max(angle, smallestAngle));
}

void olSceneView::Private::applyCamera()
{
    const olHostState &state = olHostState::the();
    const Handle(Graphic3d_Camera) &camera = view->Camera();
    applyFieldOfView();

    const bool limits = state.limitNearFarPlane && isSane(state.nearPlane, state.farPlane);
    view->SetAutoZFitMode(!limits);
    if (limits)
        camera->SetZRange(state.nearPlane, state.farPlane);

    if (std::isfinite(state.eyeSeparation.get()))
        camera->SetIOD(Graphic3d_Camera::IODType_Absolute, state.eyeSeparation);
    if (state.zeroParallaxDistance > 0.0f && std::isfinite(state.zeroParallaxDistance.get()))
        camera->SetZFocus(Graphic3d_Camera::FocusType_Absolute, state.zeroParallaxDistance);

    if (isZUp != state.cameraZUp) {
        // The same view of a scene that was laid down or stood up.
        isZUp = state.cameraZUp;
        gp_Trsf turned;
        const gp_XYZ middle = box.IsVoid() ? gp_XYZ() : (box.CornerMin().XYZ() + box.CornerMax().XYZ()) / 2;
        turned.SetRotation(gp_Ax1(gp_Pnt(middle), gp::DX()), isZUp ? M_PI_2 : -M_PI_2);
        camera->Transform(turned);
        lights->placeLamp(box);
    }
}

void olSceneView::Private::applySelectionStyle()
{
    const olHostState &state = olHostState::the();
    context->SetAutomaticHilight(state.preselectionEnabled);
    const Handle(Prs3d_Drawer) style = wireStyle(state.preselectionColor, Graphic3d_ZLayerId_Top);
    context->SetHighlightStyle(Prs3d_TypeOfHighlight_Dynamic, style);
    context->SetHighlightStyle(Prs3d_TypeOfHighlight_LocalDynamic, style);
}

void olSceneView::Private::applyParts()
{
    const bool wanted = olHostState::the().zWriteTransparency;
    for (const Handle(olPart) & part : parts) {
        if (part->writesDepth == wanted || !context->IsDisplayed(part))
            continue;
        part->writesDepth = wanted;
        part->setWritesDepth(wanted);
    }
}

/// Parts are prepared when somebody points at the scene for the first time: for that the library sorts the triangles of
/// large ones, which can take longer than to draw them.
void olSceneView::Private::makeSelectable()
{
    const bool isGlassSelectable = olHostState::the().transparentObjectSelection;
    for (const Handle(olPart) & part : parts) {
        const bool wanted = isGlassSelectable || !part->isFullyTransparent();
        if (part->isSelectable == wanted || !context->IsDisplayed(part))
            continue;
        part->isSelectable = wanted;
        if (wanted) {
            context->Load(part);
            context->Activate(part, 0);
        } else {
            context->Deactivate(part);
        }
    }
}

void olSceneView::Private::showSelection()
{
    const olHostState &state = olHostState::the();
    const bool inFront = state.wireframeOverride || state.wireframeAlwaysInFront;
    const Graphic3d_ZLayerId layer = inFront ? Graphic3d_ZLayerId_Topmost : Graphic3d_ZLayerId_Default;
    const Handle(Prs3d_Drawer) style = wireStyle(state.selectionColor, layer);
    std::vector<Bnd_Box> boxes;
    for (const Handle(olPart) & part : highlighted)
        context->Unhilight(part, Standard_False);
    highlighted.clear();
    for (const Handle(olPart) & part : selected) {
        const bool isDrawn = part->selectedLevel.value_or(part->shownLevel) == part->shownLevel;
        if (!isDrawn || !context->IsDisplayed(part))
            continue;
        if (state.wireframeSelection) {
            context->HilightWithColor(part, style, Standard_False);
            highlighted.push_back(part);
        }
        boxes.push_back(boxOf({part}));
    }
    if (boxes.empty()) {
        context->Erase(marks, Standard_False);
        return;
    }
    marks->setMarks(boxes, state.markerSize, colorOf(state.selectionColor));
    context->Display(marks, 0, -1, Standard_False);
    context->SetZLayer(marks, layer);
    context->Redisplay(marks, Standard_False);
}

void olSceneView::Private::chooseLevels()
{
    int width = 0;
    int height = 0;
    view->Window()->Size(width, height);
    bool isSelectionConcerned = false;
    for (const Handle(olPart) & part : parts) {
        if (part->levels() > 1 && context->IsDisplayed(part) && chooseLevel(part, height))
            isSelectionConcerned = isSelectionConcerned || part->selectedLevel;
    }
    if (isSelectionConcerned)
        showSelection();
}

bool olSceneView::Private::chooseLevel(const Handle(olPart) & part, int height)
{
    const Bnd_Box one = boxOf({part});
    if (one.IsVoid())
        return false;
    const Handle(Graphic3d_Camera) &camera = view->Camera();
    const gp_Pnt middle((one.CornerMin().XYZ() + one.CornerMax().XYZ()) / 2);
    const double distance = std::max(camera->Eye().Distance(middle), gp::Resolution());
    const double pictureSize = 2.0 * distance * std::tan(camera->FOVy() * M_PI / 360.0);
    const int level = part->levelFor(one.CornerMin().Distance(one.CornerMax()) / pictureSize * height);
    if (level == part->shownLevel)
        return false;
    part->shownLevel = level;
    context->SetDisplayMode(part, olPart::displayModeOf(level), Standard_False);
    part->setWritesDepth(olHostState::the().zWriteTransparency);
    return true;
}

void olSceneView::setRaytracing(bool on) { d->isRaytraced = on; }

void olSceneView::setEdges(bool on)
{
    if (d->hasEdges == on)
        return;
    d->hasEdges = on;
    for (const Handle(olPart) & part : d->parts) {
        part->setEdges(on);
        part->writesDepth.reset();
        d->context->Redisplay(part, Standard_False);
    }
    d->applyParts();
}

void olSceneView::Private::showCoarse(bool coarse) const
{
    for (const Handle(olPart) & part : parts) {
        const bool isWanted =
            coarse && triangles > 2 * coarseTriangles && part->canBeCoarse() && part->triangles() >= largePart;
        if (part->isCoarse == isWanted || !context->IsDisplayed(part))
            continue;
        part->isCoarse = isWanted;
        part->setCoarseTriangles(coarseTriangles * part->triangles() / triangles);
        const int mode = isWanted ? olPart::coarseDisplayMode() : olPart::displayModeOf(part->shownLevel);
        context->SetDisplayMode(part, mode, Standard_False);
        part->setWritesDepth(olHostState::the().zWriteTransparency);
    }
}

double olSceneView::triangles() const { return d->triangles; }

bool olSceneView::canTake(int samples) const
{
    return olRenderQuality::isFreeForSamples(d->conditions(false)) && olGlBinding::mostSamples(d->view) >= samples;
}

void olSceneView::Private::setPixelRatio(double ratio) const
{
    constexpr int tolerance = 2;
    // Texts and lines follow the resolution.
    view->ChangeRenderingParams().Resolution =
        unsigned(Graphic3d_RenderingParams::THE_DEFAULT_RESOLUTION * ratio + 0.5);
    context->SetPixelTolerance(int(tolerance * ratio));
    aids->setPixelRatio(ratio);
}

olRenderQuality::Conditions olSceneView::Private::conditions(bool isMoving, bool isCoarse) const
{
    olRenderQuality::Conditions conditions;
    conditions.isMoving = isMoving;
    conditions.isCoarse = isCoarse;
    conditions.isRaytraced = isRaytraced;
    conditions.hasTransparency = hasTransparency;
    return conditions;
}

std::vector<QPointF> olSceneView::shifts(bool isMoving) const
{
    return olRenderQuality::shifts(d->conditions(isMoving));
}

bool olSceneView::draw(const Frame &frame)
{
    if (!olGlBinding::drawIntoBoundFramebuffer(d->view))
        return false;
    d->applyBackground();
    d->applyFieldOfView();
    d->chooseLevels();
    d->showCoarse(frame.isCoarse);
    const olHostState &state = olHostState::the();
    d->aids->apply(!frame.isStill || state.auxiliaryNodesDuringAntialiasing);

    olGlBinding::setFloatBuffers(d->view, state.rgb16F);
    Graphic3d_RenderingParams &parameters = d->view->ChangeRenderingParams();
    olRenderQuality::apply(parameters, d->conditions(frame.isMoving, frame.isCoarse));
    if (frame.samples > 1)
        parameters.NbMsaaSamples = frame.samples;
    d->view->SetShadingModel(frame.isCoarse ? Graphic3d_TOSM_VERTEX : d->viewer->DefaultShadingModel());
    d->setPixelRatio(frame.pixelRatio);

    const Handle(Graphic3d_Camera) &camera = d->view->Camera();
    camera->SetProjectionType(projectionFor(frame.eye));
    const bool shifted = !frame.shift.isNull();
    if (shifted) {
        int width = 1;
        int height = 1;
        d->view->Window()->Size(width, height);
        if (d->view->AutoZFitMode())
            d->view->AutoZFit();
        Graphic3d_Mat4d shift;
        shift.Translate(Graphic3d_Vec3d(2.0 * frame.shift.x() / width, 2.0 * frame.shift.y() / height, 0.0));
        camera->SetCustomMonoProjection(shift * camera->ProjectionMatrix());
    }
    d->view->Invalidate();
    d->view->Redraw();
    if (shifted)
        camera->ResetCustomProjection();
    camera->SetProjectionType(Graphic3d_Camera::Projection_Perspective);
    return true;
}

const Handle(Graphic3d_Camera) & olSceneView::camera() const { return d->view->Camera(); }

Handle(Graphic3d_Camera) olSceneView::Private::fitted(const Bnd_Box &what) const
{
    const Handle(Graphic3d_Camera) now = view->Camera();
    const Handle(Graphic3d_Camera) result = new Graphic3d_Camera(now);
    if (what.IsVoid())
        return result;
    // A sphere around it fits whichever way the camera is turned, and the camera comes to the same place every time.
    const gp_Pnt middle((what.CornerMin().XYZ() + what.CornerMax().XYZ()) / 2);
    const double radius = std::max(what.CornerMin().Distance(what.CornerMax()) / 2, 1e-6) * (1.0 + fitMargin);
    const double halfAngle = now->FOVy() * M_PI / 360.0;
    const gp_Dir direction = now->Direction();
    result->SetEyeAndCenter(middle.Translated(gp_Vec(direction) * (-radius / std::sin(halfAngle))), middle);
    return result;
}

Handle(Graphic3d_Camera) olSceneView::cameraForAll() const { return d->fitted(d->box); }

Handle(Graphic3d_Camera) olSceneView::cameraFilling(double aspect) const
{
    const Handle(Graphic3d_Camera) result = d->fitted(d->box);
    if (d->box.IsVoid())
        return result;
    const gp_Vec ahead(result->Direction());
    const gp_Vec up(result->Up());
    const gp_Vec right = ahead.Crossed(up);
    const gp_Pnt middle = result->Center();
    // The angle is that of the shorter side.
    const double half = std::tan(result->FOVy() * M_PI / 360.0);
    const double halfWidth = half * std::max(aspect, 1.0);
    const double halfHeight = half * std::max(1.0 / aspect, 1.0);
    double distance = 0;
    const gp_Pnt corners[] = {d->box.CornerMin(), d->box.CornerMax()};
    for (int corner = 0; corner < 8; ++corner) {
        const gp_Vec place(middle,
                           gp_Pnt(corners[corner & 1].X(), corners[corner >> 1 & 1].Y(), corners[corner >> 2 & 1].Z()));
        distance = std::max({distance, std::abs(place * right) / halfWidth - place * ahead,
                             std::abs(place * up) / halfHeight - place * ahead});
    }
    result->SetEyeAndCenter(middle.Translated(ahead * (-distance * (1.0 + fitMargin / 2))), middle);
    return result;
}

Handle(Graphic3d_Camera) olSceneView::cameraForSelection() const
{
    return d->fitted(d->selected.empty() ? d->box : d->boxOf(d->selected));
}

void olSceneView::resetCamera()
{
    const Handle(Graphic3d_Camera) &camera = d->view->Camera();
    const gp_Dir up = olNavigator::worldUp();
    const gp_Dir direction = d->isZUp ? gp_Dir(-0.6, 1.0, -0.7) : gp_Dir(-0.6, -0.7, -1.0);
    camera->SetUp(up);
    camera->SetEyeAndCenter(gp_Pnt(0, 0, 0).Translated(gp_Vec(direction) * -1000.0), gp_Pnt(0, 0, 0));
    camera->SetUp(up);
    // The library places the cube by it, and takes it to be at right angles to the direction of view.
    camera->OrthogonalizeUp();
    camera->Copy(d->fitted(d->box));
}

gp_Pnt olSceneView::middle(bool selected) const
{
    const Bnd_Box box = selected && !d->selected.empty() ? d->boxOf(d->selected) : d->box;
    return box.IsVoid() ? gp_Pnt() : gp_Pnt((box.CornerMin().XYZ() + box.CornerMax().XYZ()) / 2);
}

gp_Pnt olSceneView::target() const { return d->selected.empty() ? gp_Pnt() : middle(true); }

double olSceneView::size() const { return d->box.IsVoid() ? 1.0 : d->box.CornerMin().Distance(d->box.CornerMax()); }

bool olSceneView::hover(const QPoint &point)
{
    const Handle(SelectMgr_EntityOwner) before = d->context->HasDetected() ? d->context->DetectedOwner() : nullptr;
    d->makeSelectable();
    // The camera may have moved since the last frame, and what is not between its planes would not be found.
    if (d->view->AutoZFitMode())
        d->view->AutoZFit();
    d->context->MoveTo(point.x(), point.y(), d->view, Standard_False);
    const Handle(SelectMgr_EntityOwner) after = d->context->HasDetected() ? d->context->DetectedOwner() : nullptr;
    return before != after;
}

bool olSceneView::leave()
{
    if (!d->context->HasDetected())
        return false;
    d->context->ClearDetected(Standard_False);
    return true;
}

Handle(Graphic3d_Camera) olSceneView::click(bool add)
{
    const Handle(SelectMgr_EntityOwner) owner = d->context->HasDetected() ? d->context->DetectedOwner() : nullptr;
    const Handle(AIS_ViewCubeOwner) side = Handle(AIS_ViewCubeOwner)::DownCast(owner);
    if (!side.IsNull()) {
        const Handle(Graphic3d_Camera) before = new Graphic3d_Camera(d->view->Camera());
        d->view->SetProj(side->MainOrientation(), !d->isZUp);
        const Handle(Graphic3d_Camera) turned = d->fitted(d->box);
        d->view->Camera()->Copy(before);
        return turned;
    }
    const Handle(olPart) part =
        owner.IsNull() ? Handle(olPart)()
                       : Handle(olPart)::DownCast(Handle(AIS_InteractiveObject)::DownCast(owner->Selectable()));
    const auto known = std::find(d->selected.begin(), d->selected.end(), part);
    const bool wasSelected = known != d->selected.end();
    if (add && wasSelected) {
        d->selected.erase(known);
    } else {
        if (!add)
            d->selected.clear();
        if (!part.IsNull()) {
            const bool isOneLevel = part->levels() > 1 && !olHostState::the().lodSelection;
            part->selectedLevel = isOneLevel ? std::optional<int>(part->shownLevel) : std::nullopt;
            d->selected.push_back(part);
        }
    }
    d->showSelection();
    return {};
}

std::optional<gp_Pnt> olSceneView::pointUnder(const QPoint &point)
{
    hover(point);
    const Handle(StdSelect_ViewerSelector3d) &selector = d->context->MainSelector();
    for (int rank = 1; rank <= selector->NbPicked(); ++rank) {
        if (Handle(olPart)::DownCast(selector->Picked(rank)->Selectable()).IsNull())
            continue;
        return selector->PickedPoint(rank);
    }
    return {};
}

std::vector<std::string> olSceneView::parts() const
{
    std::vector<std::string> ids;
    for (const Handle(olPart) & part : d->parts) {
        if (d->context->IsDisplayed(part))
            ids.emplace_back(part->id().ToCString());
    }
    return ids;
}

std::vector<std::string> olSceneView::selection() const
{
    std::vector<std::string> ids;
    for (const Handle(olPart) & part : d->selected)
        ids.push_back(idOf(*part));
    return ids;
}

void olSceneView::select(const std::vector<std::string> &ids)
{
    const std::set<std::string> wanted(ids.begin(), ids.end());
    d->selected.clear();
    for (const Handle(olPart) & part : d->parts) {
        // The whole part counts more than one of its levels.
        part->selectedLevel.reset();
        bool isWanted = wanted.count(idOf(*part)) != 0;
        for (int level = 0; !isWanted && part->levels() > 1 && level < part->levels(); ++level) {
            part->selectedLevel = level;
            isWanted = wanted.count(idOf(*part)) != 0;
        }
        if (isWanted)
            d->selected.push_back(part);
    }
    d->showSelection();
}
