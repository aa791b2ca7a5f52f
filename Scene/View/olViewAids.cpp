#include "View/olViewAids.h"

#include "State/olHostState.h"
#include "View/olNavigator.h"

#include <AIS_CameraFrustum.hxx>
#include <AIS_InteractiveContext.hxx>
#include <AIS_LightSource.hxx>
#include <AIS_Trihedron.hxx>
#include <AIS_ViewCube.hxx>
#include <Font_FTFont.hxx>
#include <Font_FontMgr.hxx>
#include <Geom_Axis2Placement.hxx>
#include <Graphic3d_Camera.hxx>
#include <Graphic3d_TransformPers.hxx>
#include <Prs3d_DatumAspect.hxx>
#include <Prs3d_Drawer.hxx>
#include <Prs3d_PointAspect.hxx>
#include <V3d_TypeOfOrientation.hxx>
#include <gp_Ax2.hxx>

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <algorithm>
#include <utility>

namespace
{

constexpr double cubeSize = 46.0;
constexpr double textShare = 0.27;
constexpr double axesSize = 60.0;
constexpr double toCorner = 90.0;
constexpr double lampScale = 3.0;
constexpr double jointShare = 0.1;

Handle(AIS_Trihedron) makeTrihedron(const gp_Ax2 &place, double size)
{
    const Handle(AIS_Trihedron) trihedron = new AIS_Trihedron(new Geom_Axis2Placement(place));
    trihedron->SetDatumDisplayMode(Prs3d_DM_Shaded);
    trihedron->SetSize(size);
    trihedron->SetDatumPartColor(Prs3d_DatumParts_XAxis, Quantity_NOC_RED2);
    trihedron->SetDatumPartColor(Prs3d_DatumParts_YAxis, Quantity_NOC_GREEN3);
    trihedron->SetDatumPartColor(Prs3d_DatumParts_ZAxis, Quantity_NOC_BLUE2);
    trihedron->SetTextColor(Quantity_NOC_WHITE);
    return trihedron;
}

/// Whether the renderer finds a font for a text.
bool hasLetters(const QString &text)
{
    const Font_UnicodeSubset letters = Font_FTFont::CharSubset(text.at(0).unicode());
    return letters == Font_UnicodeSubset_Western ||
           !Font_FontMgr::GetInstance()->FindFallbackFont(letters, Font_FontAspect_Regular).IsNull();
}

/// In the language that is spoken; in English without a font for it.
QByteArray shownName(const char *english)
{
    const QString translated = QCoreApplication::translate("olViewAids", english);
    return hasLetters(translated) ? translated.toUtf8() : QByteArray(english);
}

/// A camera that looks at the scene from its front, as deep as it is easily seen.
Handle(AIS_CameraFrustum) makeCamera(const Bnd_Box &scene)
{
    const gp_XYZ middle = (scene.CornerMin().XYZ() + scene.CornerMax().XYZ()) / 2;
    const double size = scene.CornerMin().Distance(scene.CornerMax());
    const gp_Dir up = olNavigator::worldUp();
    const gp_XYZ front = up.Z() > 0.5 ? gp_XYZ(0, -1, 0) : gp_XYZ(0, 0, 1);

    const Handle(Graphic3d_Camera) camera = new Graphic3d_Camera();
    camera->SetProjectionType(Graphic3d_Camera::Projection_Perspective);
    camera->SetFOVy(30.0);
    camera->SetAspect(4.0 / 3.0);
    camera->SetUp(up);
    camera->SetEyeAndCenter(gp_Pnt(middle + front * size * 0.55), gp_Pnt(middle));
    camera->SetZRange(size * 0.01, size * 0.12);
    const Handle(AIS_CameraFrustum) shown = new AIS_CameraFrustum();
    shown->SetCameraFrustum(camera);
    return shown;
}

} // namespace

olViewAids::olViewAids(const Handle(AIS_InteractiveContext) & context)
    : m_context(context), m_cube(new AIS_ViewCube()), m_coordinateSystem(makeTrihedron(gp::XOY(), axesSize))
{
    m_cube->SetBoxColor(Quantity_NOC_GRAY80);
    m_cube->SetDrawAxes(Standard_False);
    m_cube->SetFixedAnimationLoop(false);
    m_cube->SetAutoStartAnimation(false);
    for (const auto &[side, name] : {std::pair(V3d_Xpos, QT_TRANSLATE_NOOP("olViewAids", "RIGHT")),
                                     {V3d_Xneg, QT_TRANSLATE_NOOP("olViewAids", "LEFT")},
                                     {V3d_Yneg, QT_TRANSLATE_NOOP("olViewAids", "FRONT")},
                                     {V3d_Ypos, QT_TRANSLATE_NOOP("olViewAids", "BACK")},
                                     {V3d_Zpos, QT_TRANSLATE_NOOP("olViewAids", "TOP")},
                                     {V3d_Zneg, QT_TRANSLATE_NOOP("olViewAids", "BOTTOM")}}) {
        m_cube->SetBoxSideLabel(side, shownName(name).constData());
    }

    m_coordinateSystem->SetZLayer(Graphic3d_ZLayerId_Topmost);
    m_coordinateSystem->SetInfiniteState(Standard_True);
    setPixelRatio(1.0);
}

void olViewAids::setPixelRatio(double ratio)
{
    if (m_pixelRatio == ratio)
        return;
    m_pixelRatio = ratio;
    m_cube->SetSize(cubeSize * ratio);
    // Texts follow the picture's resolution by themselves.
    m_cube->SetFontHeight(cubeSize * textShare);
    m_coordinateSystem->SetSize(axesSize * ratio);
    const auto place = [this](const Handle(AIS_InteractiveObject) & object, Aspect_TypeOfTriedronPosition corner) {
        const int distance = int(toCorner * m_pixelRatio);
        object->SetTransformPersistence(
            new Graphic3d_TransformPers(Graphic3d_TMF_TriedronPers, corner, Graphic3d_Vec2i(distance, distance)));
        if (m_context->IsDisplayed(object))
            m_context->Redisplay(object, Standard_False);
    };
    place(m_cube, Aspect_TOTP_RIGHT_UPPER);
    place(m_coordinateSystem, Aspect_TOTP_LEFT_LOWER);
    if (m_light.IsNull())
        return;
    sizeLamp();
    if (m_context->IsDisplayed(m_light))
        m_context->Redisplay(m_light, Standard_False);
}

void olViewAids::sizeLamp() { m_light->Attributes()->PointAspect()->SetScale(float(lampScale * m_pixelRatio)); }

void olViewAids::setScene(const Bnd_Box &scene, const Handle(Graphic3d_CLight) & lamp,
                          const std::vector<TopLoc_Location> &joints)
{
    for (const Handle(AIS_InteractiveObject) & joint : m_joints)
        m_context->Remove(joint, Standard_False);
    m_joints.clear();
    for (const Handle(AIS_InteractiveObject) & old : {m_camera, m_light}) {
        if (!old.IsNull())
            m_context->Remove(old, Standard_False);
    }
    m_camera.Nullify();
    m_light.Nullify();
    if (scene.IsVoid())
        return;

    const double size = scene.CornerMin().Distance(scene.CornerMax());
    m_camera = makeCamera(scene);
    lamp->SetName(shownName(QT_TRANSLATE_NOOP("olViewAids", "Lamp")).constData());
    const Handle(AIS_LightSource) light = new AIS_LightSource(lamp);
    light->SetDisplayRange(false);
    light->SetSize(size * 0.04);
    light->SetZoomable(true);
    light->SetSwitchOnClick(false);
    m_light = light;
    sizeLamp();
    for (const TopLoc_Location &place : joints) {
        const Handle(AIS_Trihedron) joint =
            makeTrihedron(gp_Ax2(gp::XOY()).Transformed(place.Transformation()), size * jointShare);
        // A scene has many; letters at each would hide it.
        for (const Prs3d_DatumParts axis : {Prs3d_DatumParts_XAxis, Prs3d_DatumParts_YAxis, Prs3d_DatumParts_ZAxis})
            joint->SetLabel(axis, "");
        // They are inside what they join.
        joint->SetZLayer(Graphic3d_ZLayerId_Topmost);
        m_joints.push_back(joint);
    }
}

void olViewAids::apply(bool handles)
{
    const olHostState &state = olHostState::the();
    if (m_isZUp != state.cameraZUp) {
        m_isZUp = state.cameraZUp;
        m_cube->SetYup(!m_isZUp);
        if (m_context->IsDisplayed(m_cube))
            m_context->Redisplay(m_cube, Standard_False);
    }
    show(m_cube, handles && state.viewCube, true);
    show(m_coordinateSystem, handles && state.coordinateSystem);
    show(m_camera, handles && state.camerasVisible);
    show(m_light, handles && state.lightsVisible);
    for (const Handle(AIS_InteractiveObject) & joint : m_joints)
        show(joint, handles && state.jointsVisible);
}

bool olViewAids::contains(const Handle(AIS_InteractiveObject) & object) const
{
    return object == m_cube || object == m_coordinateSystem || object == m_camera || object == m_light ||
           std::find(m_joints.begin(), m_joints.end(), object) != m_joints.end();
}

void olViewAids::show(const Handle(AIS_InteractiveObject) & object, bool shown, bool pickable)
{
    if (object.IsNull() || m_context->IsDisplayed(object) == shown)
        return;
    if (shown)
        m_context->Display(object, 0, pickable ? 0 : -1, Standard_False);
    else
        m_context->Erase(object, Standard_False);
}
