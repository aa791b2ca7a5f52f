#pragma once

#include "Utilities/olExport.h"

#include <OpenSG/OSGColor.h>

#include <vector>

/// The render view. Views are addressed by their index, all of them by -1; the calls without an index concern all
/// views. Lengths are scene units unless said otherwise. An `int` that switches something is 0 for off, else on.
class ORLO_SDK_EXPORT olOSGWidget
{
public:
    /// What dragging the mouse does to the camera.
    enum Mode : int { Trackball = 0, Fly = 1, TwoAxis = 3, Orientation = 4 };

    /// Whose mouse buttons and keys the navigation follows.
    enum InteractionMode : int { Orlo = 0, Contura = 1, Mirra = 2 };

    // Camera

    /// Field of view in degrees. The value is kept as given; the view draws what it can of it.
    static void setFov(int view, float degrees);

    static void setGlobalEyeSeparation(float separation);

    /// Distance from the eyes at which both pictures of a stereo pair meet.
    static void setGlobalZeroParallaxDistance(float distance);

    /// Size of the projection wall, and its distance from the eyes.
    static void setPowerwallWindow(int view, float width, float height, float distance);

    /// Whether z points up, else y. With `openViews` views that are open follow, else only later ones.
    static void setCameraZUp(bool zUp, bool openViews);

    /// With `limit` nothing nearer or farther is drawn; without, the planes fit the scene. Planes that no camera has
    /// are refused, in the log and at their settings: all stays as it was.
    static void setNearFarPlaneLimit(bool limit, float nearest, float farthest);

    // Rendering

    static bool isRenderEnabled();
    static void enableRender(int enable);

    /// Draws all views anew.
    static void updateAllMGLW();

    /// Each colour stands at the position with the same index, from 0 at the bottom to 1 at the top.
    static void setAllGradientBackgrounds(const std::vector<osg::Color3f> &colors, const std::vector<float> &positions);

    /// Whether transparent objects are drawn back to front.
    static void setSortTrans(int sort);

    /// Whether transparent objects write depth.
    static void setZWriteTrans(int write);

    static void setOcclusionCulling(int enable);

    /// Whether raytracing uses fewer pixels while the camera moves, and by how much a side shrinks (2, 4, 8).
    static void enableRaytracingDownscale(int enable);
    static void setRaytracingDownscaleFactor(unsigned factor);

    /// In pixels; -1 and -1 let the picture follow its window.
    static void setFixedRenderWindowSize(int width, int height);

    static void showInteractiveMaterialPreview(bool show);

    // Buffers and graphics cards

    static void setRGB10(bool use);
    static void setRGB16F(bool use);
    static void setUseSinglePassStereo(bool use);

    /// Whether each frame waits for the graphics card.
    static void setForceGLFinish(bool force);

    static void setSLI(bool enable);

    /// 0 alternates frames, 1 gives each eye a card. Needs a restart.
    static void setSLIMode(int mode);

    // Antialiasing

    /// Still frames.
    static void enableAntialiasing(int enable);

    /// 0 for none.
    static void setPostprocessAntialiasing(unsigned quality);

    /// The still frame's sample distance and scale, and the seconds of rest after which it starts.
    static void setAntialiasing(float distance, float scale, double time);

    static bool getHighQualityAntialiasing();
    static void setHighQualityAntialiasing(bool enable);

    static void setAuxiliaryNodesVisibleDuringAntialiasing(bool visible);

    /// Whether moving the camera switches the real-time antialiasing off.
    static void setAutoSuperSampling(bool enable);

    static void setSuperSampling(bool enable);

    /// Samples a pixel: 2, 4, 8 or 16; 0 while super-sampling is off.
    static void setSuperSamplingQuality(unsigned samples);

    /// What each of the four real-time presets does; sample counts are 1, 2, 4, 8 or 16.
    static void setAntialiasingQualityLow(int multisamples, bool pixelfilter, bool supersample, int raytracingSamples);
    static void setAntialiasingQualityMedium(int multisamples, bool pixelfilter, bool supersample,
                                             int raytracingSamples);
    static void setAntialiasingQualityHigh(int multisamples, bool pixelfilter, bool supersample, int raytracingSamples);
    static void setAntialiasingQualityUltra(int multisamples, bool pixelfilter, bool supersample,
                                            int raytracingSamples);

    // What is drawn beside the scene

    static void enableHeadlight(int enable);
    static void showCoordinateSystem(int show);
    static void showViewCube(bool show);
    static void showLogo(bool show);

    static bool getCamerasVisible();
    static void setCamerasVisible(bool visible);
    static bool getLightsVisible();
    static void setLightsVisible(bool visible);
    static bool getJointsVisible();
    static void setJointsVisible(bool visible);

    /// How selected objects show: as a wireframe, and that in front of everything.
    static void setWireframeSelection(bool enable);
    static void setWireframeAlwaysInFront(bool inFront);

    // Navigation

    static void setNavMode(int view, Mode mode);
    static void setInteractionMode(InteractionMode mode);
    static void setNavAutoCenter(bool enable);
    static void setNavInvertDollyAxis(bool invert);
    static void setNavInvertWheelDolly(bool invert);

    /// Whether the camera glides to where it is sent, and for how long, in frames.
    static void setAnimateNavCam(bool animate);
    static void setAnimateNavCamDuration(float duration);

    /// Whether the distance to the pivot decides how fast panning is, else the point under the mouse.
    static bool getNavUsePivotBasedPanning();
    static void setNavUsePivotBasedPanning(bool use);

    /// Factors; 1 is the plain speed.
    static float getNavPanningSpeed();
    static void setNavPanningSpeed(float factor);
    static float getNavDollySpeed();
    static void setNavDollySpeed(float factor);

    /// 0 unconstrained, 1 limited, 2 linear.
    static int getNavSpeedMode();
    static void setNavSpeedMode(int mode);

    /// Which mouse movement dollies: 0 vertical, 1 horizontal, 2 both.
    static int getNavDollyAxis();
    static void setNavDollyAxis(int axis);

    /// Whether dollying goes to the pivot, else to the middle of the view.
    static bool getNavDollyToPivot();
    static void setNavDollyToPivot(bool enable);

    static bool getNavOrbitMode();
    static void setNavOrbitMode(bool enable);

    /// How far (pixels) and how long (milliseconds) the mouse may rest for an orbit to be meant.
    static int getNavOrbitDetectionArea();
    static void setNavOrbitDetectionArea(int area);
    static int getNavOrbitDetectionTime();
    static void setNavOrbitDetectionTime(int time);

    // Space mouse

    /// Whether the device moves the camera (0) or the object (1).
    static void setSpacemouseViewMode(int mode);

    /// What it turns around: 0 the camera, 1 the selected object or the origin, 2 the point in focus.
    static void setSpacemousePivotMode(int mode);

    static void setSpacemouseTwoAxis(bool enable);
    static void setSpacemouseHelicopter(bool enable);

    /// Keeps the camera at a height above the ground.
    static void setSpacemouseUseFixedHeight(bool use);
    static void setSpacemouseFixedHeight(float height);

    // Displays

    /// Where the picture goes: 0 to the screen, 6 to the StarVR headset, others to further devices.
    static int getDisplayType();
    static void setDisplayType(int display);
};
