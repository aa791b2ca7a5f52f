#include "Widgets/olTesselationSettings.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QSlider>
#include <QTest>

namespace
{

using Control = olTesselationSettings::Control;

class TesselationSettings : public ::testing::Test
{
protected:
    TesselationSettings() { settings.setConnections(); }

    template <class Widget> Widget &control(Control which) { return dynamic_cast<Widget &>(*settings.control(which)); }
    int quality() { return control<QSlider>(Control::Quality).value(); }
    void type(Control which, const QString &text)
    {
        auto &field = control<QLineEdit>(which);
        field.selectAll();
        QTest::keyClicks(&field, text);
    }

    olTesselationSettings settings;
};

TEST_F(TesselationSettings, SliderSetsTheThreeTolerancesFromLowestToHighest)
{
    auto &slider = control<QSlider>(Control::Quality);
    const double stitching = settings.stitchingTolerance();
    slider.setValue(slider.minimum());
    for (int preset = slider.minimum() + 1; preset <= slider.maximum(); ++preset) {
        const double before[] = {settings.chordDeviation(), settings.normalTolerance(), settings.maxChordLength()};
        slider.setValue(preset);
        EXPECT_LT(settings.chordDeviation(), before[0]);
        EXPECT_LT(settings.normalTolerance(), before[1]);
        EXPECT_LT(settings.maxChordLength(), before[2]);
    }
    EXPECT_EQ(settings.stitchingTolerance(), stitching);
}

TEST_F(TesselationSettings, DefaultsOfAnImportAreTheMiddlePreset)
{
    settings.setChordDeviation(0.075);
    settings.setNormalTolerance(10.0);
    settings.setMaxChordLength(200.0);
    settings.updateQualityPreset();
    auto &slider = control<QSlider>(Control::Quality);
    EXPECT_EQ(slider.value() * 2, slider.minimum() + slider.maximum());
    slider.setValue(slider.maximum());
    slider.setValue((slider.minimum() + slider.maximum()) / 2);
    EXPECT_EQ(settings.chordDeviation(), 0.075);
    EXPECT_EQ(settings.normalTolerance(), 10.0);
    EXPECT_EQ(settings.maxChordLength(), 200.0);
}

TEST_F(TesselationSettings, SliderFollowsWhatIsTypedAndChangesNothingElse)
{
    const int before = quality();
    type(Control::ChordDeviation, "0.0001");
    EXPECT_GT(quality(), before);
    EXPECT_EQ(settings.chordDeviation(), 0.0001);
    EXPECT_EQ(settings.normalTolerance(), 10.0);

    type(Control::ChordDeviation, "500");
    EXPECT_LT(quality(), before);
    EXPECT_EQ(settings.chordDeviation(), 500.0);
    EXPECT_EQ(settings.maxChordLength(), 200.0);
}

TEST_F(TesselationSettings, CheckBoxesAndGroupsDecideWhatIsEnabled)
{
    const auto enabled = [this](Control which) { return control<QWidget>(which).isEnabled(); };
    control<QCheckBox>(Control::Tessellation).click();
    EXPECT_FALSE(enabled(Control::Quality));
    EXPECT_TRUE(enabled(Control::StitchingTolerance));
    control<QCheckBox>(Control::Stitching).click();
    EXPECT_FALSE(enabled(Control::StitchingTolerance));

    control<QCheckBox>(Control::Tessellation).click();
    settings.enableGroups(olTesselationSettings::StitchingGroup);
    EXPECT_FALSE(enabled(Control::ChordDeviation));
    EXPECT_TRUE(enabled(Control::Stitching));
    settings.enableGroups(~0u);
    EXPECT_TRUE(enabled(Control::ChordDeviation));
    EXPECT_FALSE(enabled(Control::StitchingTolerance)) << "its box is still unchecked";
}

} // namespace
