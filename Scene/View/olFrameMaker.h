#pragma once

#include "View/olPictureMean.h"
#include "View/olPictureTarget.h"
#include "View/olSceneView.h"
#include "View/olStillFrame.h"

/// Makes frames of a view: from one picture, or from the mean of as many as antialiasing, stereo and a still frame
/// need. The context must be current in every call.
class olFrameMaker
{
public:
    /// How the view is looked at, beyond what the host's state says.
    struct Options {
        bool isMoving = false;   ///< The camera is on its way, and speed counts.
        bool isCoarse = false;   ///< As in a frame of the view.
        bool isAnaglyph = false; ///< For glasses with a red and a cyan side.
        double pixelRatio = 1;   ///< As in a frame of the view.
    };

    /// Each is false where nothing could be drawn.
    [[nodiscard]] bool draw(olSceneView &view, olPictureTarget &target, const QSize &size, const Options &options);

    /// A still frame takes shape from call to call, while nothing else may be drawn.
    [[nodiscard]] bool drawStill(olSceneView &view, olPictureTarget &target, const Options &options,
                                 olStillFrame &still);

    /// Gives everything back to the context.
    void release();

private:
    [[nodiscard]] bool addPicture(olSceneView &view, const QSize &size, const Options &options,
                                  const olSceneView::Frame &frame);

    olPictureTarget m_picture;
    olPictureMean m_mean;
};
