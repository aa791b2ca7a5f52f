#include "Scene/View/ViewTest.h"

#include "State/olHostState.h"
#include "View/olStateInPicture.h"

#include <OpenSG/OSGColor.h>

#include <functional>

namespace
{

using Colors = std::vector<osg::Color3f>;

constexpr auto rendering = "Render Options";
constexpr auto marking = "Selection";
const QPoint coverInPicture(160, 112);

/// One setting, what the view is shown like before, and how much of the picture it changes at least.
struct Case {
    const char *name;
    const char *module;
    const char *key;
    boost::any value;
    double least = 0.001;
    std::function<void(ViewTest &, olViewport &)> before = {};
};

class SettingsInTheView : public ViewTest
{
public:
    using ViewTest::apply;
    using ViewTest::hoverAt;

protected:
    void show(const Case &tried)
    {
        SCOPED_TRACE(tried.name);
        if (tried.before)
            tried.before(*this, view);
        settle();
        const QImage before = view.picture();
        ASSERT_LT(difference(before, view.picture()), 0.0005) << "the picture is not the same twice";
        apply(tried.module, tried.key, tried.value);
        const QImage after = view.picture();
        EXPECT_GT(difference(before, after), tried.least);
    }
};

void inStereo(ViewTest &, olViewport &view) { view.setAnaglyph(true); }

void withSelection(ViewTest &, olViewport &view)
{
    // The housing and a part inside it.
    view.select(view.parts().mid(0, 3));
}

TEST_F(SettingsInTheView, FieldOfView) { show({"fov", "Camera", "Camera fov", 60.0f, 0.05}); }

TEST_F(SettingsInTheView, EyeSeparation)
{
    const QImage mono = view.picture();
    show({"separation", "Camera", "Stereo eye separation", 20.0f, 0.01, inStereo});
    apply("Camera", "Stereo eye separation", 0.0f);
    EXPECT_LT(difference(mono, view.picture()), 0.002) << "both eyes see the same";
}

TEST_F(SettingsInTheView, ZeroParallaxDistance)
{
    show({"parallax", "Camera", "Stereo zero plane parallaxe", 400.0f, 0.01, inStereo});
}

TEST_F(SettingsInTheView, Transparency) { show({"depth", rendering, "RenderOptions zwrite trans", true}); }

TEST_F(SettingsInTheView, Aids)
{
    show({"axes", rendering, "RenderOptions coordinate system", true});
    show({"cube", rendering, "RenderOptions viewcube", false, 0.005});
    show({"cameras", rendering, "RenderOptions show cameras", false, 0.0005});
    show({"lights", rendering, "RenderOptions show lights", false, 0.0003});
    show({"joints", rendering, "RenderOptions show joints", true, 0.0005});
}

TEST_F(SettingsInTheView, AidsKeepTheirSizeOnFineScreens)
{
    apply(rendering, "RenderOptions coordinate system", true);
    const double ratio = view.devicePixelRatioF();
    const QImage fine = view.picture();
    ASSERT_EQ(fine.size(), QSize(width, height) * ratio);
    const QImage plain = view.picture(QSize(width, height));
    // The cube, a letter of the axes, the lamp with its name.
    for (const QRect &place : {QRect(190, 30, 100, 100), QRect(76, 82, 20, 18), QRect(148, 8, 82, 26)}) {
        const QImage large = fine.copy(QRect(place.topLeft() * ratio, place.size() * ratio));
        EXPECT_LT(
            distance(large.scaled(place.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation), plain.copy(place)),
            18.0);
    }
}

TEST_F(SettingsInTheView, ZUp) { show({"z up", rendering, "RenderOptions z-up", false, 0.02}); }

TEST_F(SettingsInTheView, Headlight)
{
    show({"point", rendering, "RenderOptions use point headlight", true, 0.01});
    show({"off", rendering, "RenderOptions headlight mode", 2, 0.05});
    show({"on", rendering, "RenderOptions headlight mode", 1, 0.05});
}

TEST_F(SettingsInTheView, NearAndFarPlane)
{
    apply(rendering, "RenderOptions near plane", 330.0f);
    apply(rendering, "RenderOptions far plane", 400.0f);
    show({"limits", rendering, "RenderOptions limit near far plane", true, 0.02});
    show({"near", rendering, "RenderOptions near plane", 360.0f, 0.01});
    show({"far", rendering, "RenderOptions far plane", 370.0f, 0.01});
    const QImage sane = view.picture();
    apply(rendering, "RenderOptions near plane", -5.0f);
    apply(rendering, "RenderOptions near plane", 1000.0f);
    EXPECT_FALSE(view.picture().isNull()) << "planes that cannot be are left alone";
}

TEST_F(SettingsInTheView, Selection)
{
    show({"marker size", marking, "Marker size", 3.0f, 0.0005, withSelection});
    show({"wireframe", marking, "RenderOptions wireframe selection", true, 0.001});
    show({"colour", marking, "RenderOptions selection color", osg::Color3f(0.0f, 1.0f, 0.0f), 0.001});
    show({"in front", marking, "RenderOptions selection in front", true, 0.0005});
}

TEST_F(SettingsInTheView, Preselection)
{
    hoverAt(coverInPicture);
    const QImage blue = view.picture();
    apply(marking, "Selection preselection color", osg::Color3f(1.0f, 0.0f, 0.0f));
    hoverAt(QPoint(5, 230));
    const QImage none = view.picture();
    EXPECT_GT(difference(blue, none), 0.001);
    hoverAt(coverInPicture);
    EXPECT_GT(difference(blue, view.picture()), 0.001) << "another colour";
    hoverAt(QPoint(5, 230));
    apply(marking, "Selection preselection enabled", false);
    hoverAt(coverInPicture);
    EXPECT_LT(difference(none, view.picture()), 0.0005);
}

TEST_F(SettingsInTheView, BackgroundHasAnyNumberOfColours)
{
    record().set("RenderOptions background ints", std::vector<float>{0.0f, 0.5f, 1.0f}, true);
    apply(rendering, "RenderOptions background colors",
          Colors{{1.0f, 0.0f, 0.0f}, {0.0f, 1.0f, 0.0f}, {0.0f, 0.0f, 1.0f}});
    const QImage picture = view.picture();
    // The renderer mixes in light, not in the numbers of the screen: dark channels come out a little lighter.
    constexpr int tolerance = 8;
    const auto isAt = [&picture](int row, const QColor &expected) {
        const QColor color = picture.pixelColor(2, row);
        return std::abs(color.red() - expected.red()) < tolerance &&
               std::abs(color.green() - expected.green()) < tolerance &&
               std::abs(color.blue() - expected.blue()) < tolerance;
    };
    EXPECT_TRUE(isAt(height - 1, QColor(254, 1, 0))) << "the first position is at the bottom";
    EXPECT_TRUE(isAt(height / 2, QColor(0, 254, 1)));
    EXPECT_TRUE(isAt(height / 4, QColor(0, 128, 127)))
        << "between two positions the colours mix as the screen has them";
    EXPECT_TRUE(isAt(0, QColor(0, 1, 254)));

    apply(rendering, "RenderOptions background colors", Colors{});
    EXPECT_TRUE(view.picture().pixelColor(2, 2) == QColor(0, 0, 0)) << "no colour at all is black";
}

TEST_F(SettingsInTheView, FixedResolutionIsLetterboxed)
{
    apply(rendering, "RenderOptions fixed resx", 200);
    apply(rendering, "RenderOptions fixed resy", 400);
    apply(rendering, "RenderOptions fixed res", true);
    settle();
    EXPECT_EQ(view.shownPicture().size(), QSize(200, 400));
    const QImage window = view.grabFramebuffer();
    EXPECT_EQ(window.pixelColor(5, height / 2), QColor(0, 0, 0)) << "bars at the sides";
    EXPECT_NE(window.pixelColor(width / 2, 5), QColor(0, 0, 0));
    EXPECT_LT(difference(window.copy(110, 30, 100, 60), view.shownPicture().scaled(120, 240).copy(10, 30, 100, 60)),
              0.2)
        << "the picture stands upright";
    view.showAll();
    settle(600);
    int coloured = 0;
    for (int column = 0; column < 200; ++column) {
        const QImage strip = view.shownPicture().copy(column, 150, 1, 140);
        coloured += difference(strip, strip.convertToFormat(QImage::Format_Grayscale8)) > 0.03;
    }
    EXPECT_GT(coloured, 110) << "a picture that is higher than wide is filled from side to side";
    apply(rendering, "RenderOptions fixed res", false);
    settle();
    EXPECT_EQ(view.shownPicture().size(), QSize(width, height));
}

TEST_F(SettingsInTheView, AStillFrameComesAfterTheSecondsOfRest)
{
    apply(rendering, "RenderOptions antialiase time", 0.2);
    apply(rendering, "RenderOptions enable antialiase", true);
    settle(20);
    const QImage moving = view.shownPicture();
    EXPECT_FALSE(view.isStillFrameDone());
    const auto waitForStillFrame = [this] {
        for (int tries = 0; tries < 200 && !view.isStillFrameDone(); ++tries)
            settle(50);
    };
    waitForStillFrame();
    ASSERT_TRUE(view.isStillFrameDone());
    QImage still = view.shownPicture();
    const double smoothed = difference(moving, still);
    EXPECT_GT(smoothed, 0.002);
    EXPECT_LT(smoothed, 0.2) << "the same picture, only better";
    EXPECT_LT(difference(still, view.stillPicture()), 0.0005) << "for a file it comes at once";
    for (const char *factor : {"RenderOptions antialiase distance", "RenderOptions antialiase scale"}) {
        apply(rendering, factor, 8.0f);
        const QImage blurred = view.stillPicture();
        EXPECT_GT(difference(still, blurred), 0.005) << factor << ": the pictures of the mean lie farther apart";
        still = blurred;
    }

    waitForStillFrame();
    olHostState &state = olHostState::the();
    state.navMode = 1;
    state.teleportRange = 3.0f;
    settle();
    EXPECT_TRUE(view.isStillFrameDone()) << "what the picture does not depend on changes nothing";
    state.viewUpdates = state.viewUpdates + 1;
    EXPECT_FALSE(view.isStillFrameDone());
    apply("Camera", "Camera fov", 50.0f);
    EXPECT_FALSE(view.isStillFrameDone()) << "a change begins it anew";
    apply(rendering, "RenderOptions auxiliary nodes", false);
    waitForStillFrame();
    EXPECT_GT(difference(view.shownPicture(), view.picture()), 0.005) << "without the cube";
}

/// What of the picture is made anew when a module applies all of its settings.
class PartsOfThePicture : public PluginTest, private olHostObserver
{
protected:
    PartsOfThePicture() { olHostState::the().addObserver(*this); }
    ~PartsOfThePicture() override { olHostState::the().removeObserver(*this); }

    unsigned touchedBy(const char *name)
    {
        fill(name);
        touched = 0;
        module(name).applyPreferences();
        return touched;
    }

private:
    void stateChanged(const olHostValueBase &value) override { touched |= olStateInPicture::partsOf(value); }

    unsigned touched = 0;
};

TEST_F(PartsOfThePicture, AreMadeAnewByTheSettingsThatTheyDependOnAlone)
{
    using namespace olStateInPicture;
    EXPECT_EQ(touchedBy("Camera"), unsigned(Camera));
    EXPECT_EQ(touchedBy("Selection"), Hovering | Part::Selection);
    EXPECT_EQ(touchedBy("Render Options"), Frame | Camera | Lights | Solidity);
    EXPECT_EQ(touchedBy("Navigator") | touchedBy("Devices") | touchedBy("MainWindow"), 0u);
}

TEST_F(SettingsInTheView, WhileRenderingIsSuspendedThePictureStays)
{
    const QImage before = view.shownPicture();
    olHostState &state = olHostState::the();
    state.renderEnabled = false;
    state.fov = 80.0f;
    settle();
    EXPECT_LT(difference(before, view.shownPicture()), 0.0005);
    state.renderEnabled = true;
    settle();
    EXPECT_GT(difference(before, view.shownPicture()), 0.05);
}

} // namespace
