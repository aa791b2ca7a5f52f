#pragma once

#include "Support/PictureDifference.h"
#include "Support/PluginTest.h"

#include "Model/olScene.h"
#include "View/olViewport.h"

#include <QImage>

/// The real plug-in, and a view of the sample assembly that follows the host: as it is after a first start.
class ViewTest : public PluginTest
{
protected:
    ViewTest();

    /// Lets the view draw what is due.
    void settle(int milliseconds = 60);

    /// Sends the mouse to a place of the view, as hovering does.
    void hoverAt(const QPoint &point);

    static double difference(const QImage &left, const QImage &right) { return pictureDifference(left, right); }
    /// Presses a mouse button and moves; the second lets it go again.
    void press(const QPoint &from, const QPoint &to, int restMilliseconds = 0);
    void release(const QPoint &at);

    /// By how many of 255 steps the channels differ in the mean; 255 for pictures of different sizes.
    static double distance(const QImage &left, const QImage &right);

    static constexpr int width = 320;
    static constexpr int height = 240;

    olScene scene;
    olViewport view;
};
