#include "Model/GuardModel.h"

#include "State/olHostState.h"
#include "State/olValue.h"

#include <algorithm>
#include <map>

namespace
{

const olHostState &host() { return olHostState::the(); }

/// Null where the record has no value of exactly that type.
template <class T> const T *held(const olMessage &record, const char *key)
{
    return boost::any_cast<T>(&record.get(key));
}

std::string text(bool value) { return value ? "true" : "false"; }
std::string text(int value) { return std::to_string(value); }
std::string text(float value) { return olValue::number(value); }
std::string text(const osg::Color3f &value)
{
    return '(' + text(value.red()) + ", " + text(value.green()) + ", " + text(value.blue()) + ')';
}

/// Collects one module's calls from its record.
class Caller
{
public:
    explicit Caller(const olMessage &record) : m_record(record) {}

    template <class T> void call(const char *function, const T &value, const char *before = "")
    {
        calls.push_back(std::string(function) + '(' + before + text(value) + ')');
    }

    /// Nothing is called for a key that cannot be read.
    template <class T> void ifHeld(const char *key, const char *function, const char *before = "")
    {
        if (const T *value = held<T>(m_record, key))
            call(function, *value, before);
    }

    template <class T> void heldOr(const char *key, const T &fallback, const char *function)
    {
        const T *value = held<T>(m_record, key);
        call(function, value ? *value : fallback);
    }

    GuardModel::Calls calls;

private:
    const olMessage &m_record;
};

} // namespace

bool GuardModel::knows(const std::string &module)
{
    return module == "Camera" || module == "Navigator" || module == "Selection" || module == "WebInterface";
}

void GuardModel::taken(const std::string &key, bool isSame)
{
    if (isSame)
        m_unchanged.insert(key);
}

void GuardModel::settled(const std::vector<std::string> &keys)
{
    for (const std::string &key : keys)
        m_unchanged.erase(key);
}

GuardModel::Calls GuardModel::apply(const std::string &module, const olMessage &record) const
{
    if (module == "Camera")
        return camera(record);
    if (module == "Navigator")
        return navigator(record);
    return module == "Selection" ? selection(record) : webInterface(record);
}

GuardModel::Calls GuardModel::camera(const olMessage &record) const
{
    Caller to(record);
    const auto ifChanged = [&](const char *key, const char *function, const char *before = "") {
        if (changed(key))
            to.ifHeld<float>(key, function, before);
    };
    ifChanged("Camera fov", "olOSGWidget::setFov", "-1, ");
    ifChanged("Stereo eye separation", "olOSGWidget::setGlobalEyeSeparation");
    ifChanged("Stereo zero plane parallaxe", "olOSGWidget::setGlobalZeroParallaxDistance");

    const auto *width = held<float>(record, "Powerwall width");
    const auto *height = held<float>(record, "Powerwall height");
    const auto *distance = held<float>(record, "Powerwall distance");
    const bool isAnyChanged =
        changed("Powerwall width") || changed("Powerwall height") || changed("Powerwall distance");
    if (isAnyChanged && width && height && distance)
        to.call("olOSGWidget::setPowerwallWindow", *distance,
                ("-1, " + text(*width) + ", " + text(*height) + ", ").c_str());
    return to.calls;
}

GuardModel::Calls GuardModel::navigator(const olMessage &record) const
{
    Caller to(record);
    if (changed("Navigator mode"))
        to.ifHeld<int>("Navigator mode", "olOSGWidget::setNavMode", "-1, ");
    to.ifHeld<bool>("Navigator auto center", "olOSGWidget::setNavAutoCenter");
    to.ifHeld<int>("Interaction mode", "olOSGWidget::setInteractionMode");
    if (host().analysisMode) {
        to.call("olOSGWidget::setNavInvertDollyAxis", true);
        to.call("olOSGWidget::setNavInvertWheelDolly", true);
    } else {
        to.ifHeld<bool>("Navigator invert zoom", "olOSGWidget::setNavInvertDollyAxis");
        to.ifHeld<bool>("Navigator invert wheel zoom", "olOSGWidget::setNavInvertWheelDolly");
    }
    to.heldOr("Navigator pivot based panning", host().navUsePivotBasedPanning.get(),
              "olOSGWidget::setNavUsePivotBasedPanning");
    to.heldOr("Navigator panning speed", host().navPanningSpeed.get(), "olOSGWidget::setNavPanningSpeed");
    to.heldOr("Navigator speed mode", host().navSpeedMode.get(), "olOSGWidget::setNavSpeedMode");
    to.heldOr("Navigator dolly speed", host().navDollySpeed.get(), "olOSGWidget::setNavDollySpeed");
    to.heldOr("Navigator dolly axis", host().navDollyAxis.get(), "olOSGWidget::setNavDollyAxis");
    to.heldOr("Navigator dolly to pivot", host().navDollyToPivot.get(), "olOSGWidget::setNavDollyToPivot");
    to.ifHeld<bool>("Navigator animate camera", "olOSGWidget::setAnimateNavCam");
    to.heldOr("Navigator animate camera duration", 20.0f, "olOSGWidget::setAnimateNavCamDuration");
    to.ifHeld<bool>("Navigator orbit mode", "olOSGWidget::setNavOrbitMode");
    to.ifHeld<int>("Navigator orbit detection area", "olOSGWidget::setNavOrbitDetectionArea");
    to.ifHeld<int>("Navigator orbit detection time", "olOSGWidget::setNavOrbitDetectionTime");
    return to.calls;
}

GuardModel::Calls GuardModel::selection(const olMessage &record) const
{
    Caller to(record);
    to.ifHeld<float>("Marker size", "olScenegraph::setMarkerSize");
    to.ifHeld<bool>("LOD selection", "olScenegraph::setLODSelection");
    to.ifHeld<bool>("Selection auto scroll", "olScenegraph::setAutoScroll");
    to.ifHeld<bool>("Transparent Object Selection", "osg::Selection::setForceTransparentObjectSelection");
    to.ifHeld<bool>("Selection preselection enabled", "olScenegraph::setPreselectionEnabled");
    to.ifHeld<osg::Color3f>("Selection preselection color", "olScenegraph::setPreselectionColor");
    if (changed("RenderOptions wireframe selection"))
        to.heldOr("RenderOptions wireframe selection", true, "olOSGWidget::setWireframeSelection");
    if (changed("RenderOptions selection in front")) {
        to.heldOr("RenderOptions selection in front", false, "olScenegraph::setWireframeOverride");
        to.heldOr("RenderOptions selection in front", false, "olOSGWidget::setWireframeAlwaysInFront");
    }
    if (changed("RenderOptions selection color"))
        to.heldOr("RenderOptions selection color", osg::Color3f(0.956f, 0.521f, 0.086f),
                  "olScenegraph::setSelectionColor");
    return to.calls;
}

GuardModel::Calls GuardModel::webInterface(const olMessage &record) const
{
    constexpr auto enable = "olController::enableWebInterface";
    const char *const keys[] = {"WebInterface enable web server2", "WebInterface port",
                                "WebInterface ssl port",           "WebInterface localhost only",
                                "WebInterface debug mode",         "WebInterface use white list",
                                "WebInterface white list",         "WebInterface secure python"};
    Caller to(record);
    if (std::none_of(std::begin(keys), std::end(keys), [this](const char *key) { return changed(key); }))
        return {};
    to.call(enable, false);
    if (!m_isServerForbidden) {
        if (host().renderServerNode || host().viewer || host().analysisMode || host().webInterfacePort > 0 ||
            !host().webInterfacePipe.get().empty())
            to.call(enable, true);
        else
            to.ifHeld<bool>("WebInterface enable web server2", enable);
    }
    if (host().webInterface)
        to.ifHeld<bool>("WebInterface debug mode", "olWebInterface::setDebugMode");
    return to.calls;
}
