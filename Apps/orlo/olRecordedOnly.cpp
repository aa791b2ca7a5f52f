#include "olRecordedOnly.h"

#include <QSet>
#include <QString>

bool olIsRecordedOnly(const QString &name)
{
    // A lint holds that the view and the viewer read none of these.
    static const QSet<QString> names{
        // The renderer has no second window, no deep colours, no second card and no queries of what is hidden.
        QStringLiteral("powerwallWidth"),
        QStringLiteral("powerwallHeight"),
        QStringLiteral("powerwallDistance"),
        QStringLiteral("rgb10"),
        QStringLiteral("singlePassStereo"),
        QStringLiteral("sli"),
        QStringLiteral("sliMode"),
        QStringLiteral("occlusionCulling"),
        QStringLiteral("interactiveMaterialPreview"),
        QStringLiteral("logo"),
        QStringLiteral("simpleToolclips"),
        // There is no headset.
        QStringLiteral("starVRFoveatedRendering"),
        QStringLiteral("starVRFoveatedFovFactor"),
        QStringLiteral("starVRFoveatedResolutionScale"),
        QStringLiteral("starVRNonFoveatedResolutionScale"),
        QStringLiteral("starVRFrontViewResolutionScale"),
        QStringLiteral("starVRSideViewResolutionScale"),
        QStringLiteral("starVRSingleTexture"),
        QStringLiteral("teleportGroundMode"),
        QStringLiteral("teleportRange"),
        QStringLiteral("visualiseHands"),
        QStringLiteral("autoCreateCollisionObjects"),
        QStringLiteral("showTooltipsOnStart"),
        QStringLiteral("spacemouseButtons"),
        // The mesher knows no such limit.
        QStringLiteral("maxChordLengths"),
        // There is no reader for what these steer.
        QStringLiteral("optimizeTransparencies"),
        QStringLiteral("legacyJtLoader"),
        QStringLiteral("legacyRhinoLoader"),
        QStringLiteral("topologyTolerance"),
        QStringLiteral("topologyMethod"),
        QStringLiteral("offsetFactor"),
        QStringLiteral("tessellationQuality"),
        QStringLiteral("checkOrientation"),
    };
    return names.contains(name);
}
