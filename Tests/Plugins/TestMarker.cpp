#include "Support/PluginTest.h"

#include "Widgets/QOLColorManipulator.h"

#include <QImage>
#include <QMetaObject>

namespace
{

class Marker : public PluginTest
{
protected:
    static bool previewShows(const QColor &color)
    {
        const QImage image = control<QWidget>("Selection", "wireframePreview").grab().toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == color)
                    return true;
            }
        }
        return false;
    }
};

TEST_F(Marker, ThePreviewFollowsTheWireframesColourAndTellsTheHostNothing)
{
    fill("Selection");
    calls.take();

    control<QOLColorManipulator>("Selection", "wireframeColor").setColor({0.0f, 1.0f, 0.0f});
    EXPECT_TRUE(previewShows(Qt::green));
    control<QOLColorManipulator>("Selection", "preselectionColor").setColor({1.0f, 0.0f, 0.0f});
    EXPECT_TRUE(previewShows(Qt::green));
    EXPECT_TRUE(QMetaObject::invokeMethod(module("Selection").page(), "changedSelectionColor", Q_ARG(float, 7.0f),
                                          Q_ARG(float, -1.0f), Q_ARG(float, 0.0f)));
    EXPECT_TRUE(previewShows(Qt::red)) << "channels beyond the screen's are brought in";
    EXPECT_TRUE(calls.take().empty());
    module("Selection").updateGUI();
    EXPECT_FALSE(previewShows(Qt::red)) << "filling shows the stored colour";
}

} // namespace
