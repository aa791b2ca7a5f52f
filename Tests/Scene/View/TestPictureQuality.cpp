#include "Scene/View/ViewTest.h"

#include "State/olHostState.h"
#include "View/olProgressWheel.h"

#include <OpenSG/OSGColor.h>

#include <BRepMesh_IncrementalMesh.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRep_Builder.hxx>
#include <Geom_Plane.hxx>
#include <Poly_Triangulation.hxx>
#include <Precision.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <TDocStd_Document.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gp.hxx>

#include <QCursor>
#include <QTest>

#include <array>
#include <cmath>
#include <set>
#include <string>

namespace
{

constexpr auto rendering = "Render Options";
constexpr auto quality = "RenderOptions hardware antialiasing quality";

/// The pane in front is drawn first.
olScene::Document redPaneBeforeGreenOne()
{
    const olScene::Document document = olScene::newDocument();
    const auto shapes = XCAFDoc_DocumentTool::ShapeTool(document->Main());
    const auto colors = XCAFDoc_DocumentTool::ColorTool(document->Main());
    for (const bool front : {true, false}) {
        const TopoDS_Shape pane =
            BRepPrimAPI_MakeBox(gp_Pnt(-50, front ? -20 : 20, -50), gp_Pnt(50, front ? -19 : 21, 50)).Shape();
        BRepMesh_IncrementalMesh mesher(pane, 1.0);
        const TDF_Label label = shapes->AddShape(pane, Standard_False);
        colors->SetColor(label, Quantity_ColorRGBA(front ? 1.0f : 0.0f, front ? 0.0f : 1.0f, 0.0f, 0.6f),
                         XCAFDoc_ColorSurf);
    }
    return document;
}

/// A sheet with waves, of triangles alone or as those of a surface.
olScene::Document largeModel(bool hasSurface)
{
    constexpr int side = 700;
    const Handle(Poly_Triangulation) mesh =
        new Poly_Triangulation(side * side, 2 * (side - 1) * (side - 1), Standard_False);
    for (int node = 0; node < side * side; ++node) {
        const int x = node % side;
        const int y = node / side;
        mesh->SetNode(node + 1, gp_Pnt(x, y, 20 * std::sin(x / 30.0) * std::cos(y / 30.0)));
    }
    for (int square = 0; square < (side - 1) * (side - 1); ++square) {
        const int corner = square / (side - 1) * side + square % (side - 1) + 1;
        mesh->SetTriangle(2 * square + 1, Poly_Triangle(corner, corner + 1, corner + side + 1));
        mesh->SetTriangle(2 * square + 2, Poly_Triangle(corner, corner + side + 1, corner + side));
    }
    TopoDS_Face face;
    if (hasSurface)
        BRep_Builder().MakeFace(face, new Geom_Plane(gp::XOY()), Precision::Confusion());
    else
        BRep_Builder().MakeFace(face);
    BRep_Builder().UpdateFace(face, mesh);
    const olScene::Document document = olScene::newDocument();
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->AddShape(face, Standard_False);
    return document;
}

class PictureQuality : public ViewTest
{
protected:
    /// The picture with that many samples of the preset "ultra", and without any for 0.
    QImage sampled(int samples)
    {
        apply(rendering, "RenderOptions use pixelfilter ultra", false);
        apply(rendering, "RenderOptions supersample factor ultra", false);
        apply(rendering, "RenderOptions multisample quality ultra", samples);
        apply(rendering, "RenderOptions raytracing supersampling quality ultra", samples);
        apply(rendering, quality, samples ? 4 : 0);
        return view.picture();
    }
};

TEST_F(PictureQuality, MoreSamplesComeNearerToASmoothPicture)
{
    for (const bool traced : {false, true}) {
        SCOPED_TRACE(traced ? "traced" : "drawn");
        const QImage drawn = view.picture();
        view.setRaytracing(traced);
        EXPECT_EQ(difference(drawn, view.picture()) > 0.05, traced);
        const QImage smooth = sampled(16);
        const double rough = distance(smooth, sampled(0));
        const double two = distance(smooth, sampled(2));
        const double eight = distance(smooth, sampled(8));
        EXPECT_LT(two, 0.8 * rough);
        EXPECT_LT(eight, 0.6 * two);
        EXPECT_GT(eight, 0.0);
    }
}

TEST_F(PictureQuality, EachQualityGoesByItsOwnPreset)
{
    const std::array<std::string, 4> presets{"low", "medium", "high", "ultra"};
    for (std::size_t chosen = 0; chosen < presets.size(); ++chosen) {
        apply(rendering, quality, int(chosen) + 1);
        for (std::size_t changed = 0; changed < presets.size(); ++changed) {
            SCOPED_TRACE(presets[chosen] + " is chosen, " + presets[changed] + " is changed");
            const std::string samples = "RenderOptions multisample quality " + presets[changed];
            apply(rendering, samples.c_str(), 1);
            const QImage rough = view.picture();
            apply(rendering, samples.c_str(), 4);
            EXPECT_EQ(difference(rough, view.picture()) > 0.0, chosen == changed);
        }
    }
}

TEST_F(PictureQuality, TransparentSurfacesAreSortedHoweverTheFrameIsMade)
{
    scene.setDocument(redPaneBeforeGreenOne());
    const auto redIsInFront = [this] {
        const QColor seen = view.picture().pixelColor(width / 2, height / 2);
        return seen.red() > seen.green();
    };
    EXPECT_TRUE(redIsInFront());
    const QImage plain = view.picture();
    sampled(4);
    EXPECT_TRUE(redIsInFront()) << "several samples";
    apply(rendering, "RenderOptions supersample factor ultra", true);
    EXPECT_TRUE(redIsInFront()) << "at another scale";
    sampled(0);
    apply(rendering, "RenderOptions 16bit float rgb", true);
    EXPECT_LT(difference(plain, view.picture()), 0.005) << "in float buffers";
    apply(rendering, "RenderOptions sort trans", false);
    EXPECT_FALSE(redIsInFront()) << "unsorted, what is drawn later lies above";
}

TEST_F(PictureQuality, EachHelpAgainstStepsHelps)
{
    const QImage smooth = sampled(16);
    const QImage two = sampled(2);
    apply(rendering, "RenderOptions use pixelfilter ultra", true);
    EXPECT_GT(distance(two, view.picture()), 0.05);
    apply(rendering, "RenderOptions use pixelfilter ultra", false);
    apply(rendering, "RenderOptions supersample factor ultra", true);
    // Without lines and letters, which look a little different in a larger picture.
    const QRect solid(75, 90, 110, 95);
    EXPECT_LT(distance(smooth.copy(solid), view.picture().copy(solid)), distance(smooth.copy(solid), two.copy(solid)));

    const QImage rough = sampled(0);
    apply(rendering, "RenderOptions enable postprocess antialias", 1u);
    EXPECT_LT(distance(smooth, view.picture()), 0.9 * distance(smooth, rough));
}

TEST_F(PictureQuality, FloatBuffersShowNoBands)
{
    record().set("RenderOptions background ints", std::vector<float>{0.0f, 1.0f}, true);
    apply(rendering, "RenderOptions background colors",
          std::vector<osg::Color3f>{{0.40f, 0.40f, 0.40f}, {0.44f, 0.44f, 0.44f}});
    const auto mixedRows = [](const QImage &picture) {
        int rows = 0;
        for (int row = 0; row < height; ++row) {
            std::set<QRgb> colors;
            for (int column = 0; column < 16; ++column)
                colors.insert(picture.pixel(column, row));
            rows += colors.size() > 1;
        }
        return rows;
    };
    const QImage banded = view.picture();
    EXPECT_EQ(mixedRows(banded), 0);
    apply(rendering, "RenderOptions 16bit float rgb", true);
    const QImage even = view.picture();
    EXPECT_GT(mixedRows(even), height / 2);
    EXPECT_LT(difference(banded, even), 0.005) << "else it is the same";
}

TEST_F(PictureQuality, ACameraOnItsWayMayBeDrawnFaster)
{
    const QPoint middle(width / 2, height / 2);
    const QPoint goal = middle + QPoint(20, 5);
    const auto during = [&](const char *key, const boost::any &value) {
        apply(rendering, key, value);
        return view.picture();
    };
    const QImage rough = [&] {
        press(middle, goal);
        return sampled(0);
    }();
    const QImage fine = sampled(8);
    EXPECT_GT(distance(rough, fine), 0.1);
    EXPECT_LT(distance(rough, during("RenderOptions hardware antialiasing auto", true)), 0.01);

    sampled(0);
    view.setRaytracing(true);
    const QImage traced = view.picture();
    const QImage coarse = during("RenderOptions downscale", true);
    EXPECT_GT(distance(traced, coarse), 0.2);
    EXPECT_GT(distance(traced, during("RenderOptions downscale quality", 2)), distance(traced, coarse));
    release(goal);
    EXPECT_LT(distance(traced, view.picture()), 0.05) << "at rest it is as fine as before";
    view.setRaytracing(false);
    EXPECT_LT(distance(fine, sampled(8)), 0.05);
}

TEST_F(PictureQuality, ALargeModelHasFewerTrianglesWhileTheCameraMoves)
{
    const QPoint middle(width / 2, height / 2);
    const QPoint goal = middle + QPoint(20, 5);
    for (const bool hasSurface : {false, true}) {
        scene.setDocument(largeModel(hasSurface));
        // Once it is known how long it takes.
        for (const int step : {0, 2}) {
            press(middle, goal + QPoint(step, step));
            settle();
        }
        press(middle, goal + QPoint(5, 5));
        settle();
        const QImage moving = view.shownPicture();
        const double missing = distance(moving, view.picture());
        EXPECT_GT(missing, 0.01);
        EXPECT_LT(missing, 5.0) << "it still looks much the same";
        release(goal + QPoint(5, 5));
        settle();
        EXPECT_LT(distance(view.shownPicture(), view.picture()), 0.005) << "at rest it is all there";
    }
}

TEST_F(PictureQuality, AStillFrameOfALargeModelIsNoWorseThanTheFrameBefore)
{
    scene.setDocument(largeModel(false));
    apply(rendering, "RenderOptions enable antialiase", true);
    apply(rendering, "RenderOptions antialiase distance", 0.0f);
    const QImage frame = sampled(8);
    EXPECT_LT(distance(frame, view.stillPicture()), 0.01);
}

TEST_F(PictureQuality, WithoutSleepTheViewDrawsAllTheTime)
{
    int frames = 0;
    QObject::connect(&view, &QOpenGLWidget::frameSwapped, &view, [&frames] { ++frames; });
    settle(200);
    frames = 0;
    settle(300);
    EXPECT_LE(frames, 1);
    apply(rendering, "RenderOptions disable sleep", true);
    frames = 0;
    EXPECT_TRUE(QTest::qWaitFor([&frames] { return frames >= 4; }, 10000));
}

TEST_F(PictureQuality, TheProgressWheelIsWhereAndAsLargeAsItShall)
{
    olProgressWheel wheel(view);
    QCursor::setPos(view.mapToGlobal(QPoint(100, 50)));
    settle();
    wheel.setProgress(0.3);
    EXPECT_EQ(wheel.geometry().size(), QSize(32, 32));
    EXPECT_TRUE(wheel.geometry().contains(QPoint(110, 60)));
    apply(rendering, "RenderOptions progress cursor size", 80);
    apply(rendering, "RenderOptions progress cursor static", true);
    wheel.setProgress(0.4);
    EXPECT_EQ(wheel.geometry(), QRect(8, height - 88, 80, 80));
    EXPECT_TRUE(wheel.isVisible());
    const QColor ring = wheel.grab().toImage().pixelColor(69, 40);
    EXPECT_GT(ring.red(), 200) << "the first quarter is done";
    wheel.setProgress(1.0);
    EXPECT_FALSE(wheel.isVisible()) << "done";
    apply(rendering, "RenderOptions progress cursor visible", false);
    wheel.setProgress(0.4);
    EXPECT_FALSE(wheel.isVisible());
}

} // namespace
