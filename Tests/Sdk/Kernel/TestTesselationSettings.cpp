#include "Widgets/olTesselationSettings.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
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
    double number(Control which) { return control<QWidget>(which).property("value").toDouble(); }
    int quality() { return control<QSlider>(Control::Quality).value(); }
    void type(Control which, const QString &text)
    {
        auto &field = control<QLineEdit>(which);
        field.selectAll();
        QTest::keyClicks(&field, text);
    }

    olTesselationSettings settings;
};

TEST_F(TesselationSettings, SliderSetsTheThreeTolerancesAndTheDefaultsOfAnImportAreItsMiddle)
{
    auto &slider = control<QSlider>(Control::Quality);
    const auto tolerances = [this] {
        return std::vector<double>{number(Control::ChordDeviation), number(Control::NormalTolerance),
                                   number(Control::MaxChordLength)};
    };
    const double stitching = number(Control::StitchingTolerance);
    slider.setValue(slider.minimum());
    for (int preset = slider.minimum() + 1; preset <= slider.maximum(); ++preset) {
        const std::vector<double> before = tolerances();
        slider.setValue(preset);
        for (std::size_t index = 0; index < before.size(); ++index)
            EXPECT_LT(tolerances()[index], before[index]);
    }
    EXPECT_EQ(number(Control::StitchingTolerance), stitching);

    slider.setValue((slider.minimum() + slider.maximum()) / 2);
    EXPECT_EQ(tolerances(), (std::vector<double>{0.075, 10.0, 200.0}));
    slider.setValue(slider.maximum());
    settings.setChordDeviation(0.075);
    settings.setNormalTolerance(10.0);
    settings.setMaxChordLength(200.0);
    settings.updateQualityPreset();
    EXPECT_EQ(slider.value() * 2, slider.minimum() + slider.maximum());
}

TEST_F(TesselationSettings, SliderFollowsWhatIsTypedAndChangesNothingElse)
{
    const int before = quality();
    type(Control::ChordDeviation, "0.0001");
    EXPECT_GT(quality(), before);
    EXPECT_EQ(number(Control::ChordDeviation), 0.0001);
    EXPECT_EQ(number(Control::NormalTolerance), 10.0);

    type(Control::ChordDeviation, "500");
    EXPECT_LT(quality(), before);
    EXPECT_EQ(number(Control::ChordDeviation), 500.0);
    EXPECT_EQ(number(Control::MaxChordLength), 200.0);
}

TEST_F(TesselationSettings, CheckBoxesAndGroupsDecideWhatIsEnabled)
{
    const auto enabled = [this](Control which) { return control<QWidget>(which).isEnabled(); };
    control<QCheckBox>(Control::Tessellation).click();
    EXPECT_FALSE(enabled(Control::Quality));
    for (const QLabel *label : settings.findChildren<QLabel *>()) {
        if (label->buddy()) {
            EXPECT_EQ(label->isEnabled(), label->buddy()->isEnabled()) << label->text().toStdString();
        }
    }
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

    olTesselationSettings filledBefore;
    filledBefore.setStitchingEnabled(false);
    filledBefore.setConnections();
    EXPECT_FALSE(filledBefore.control(Control::StitchingTolerance)->isEnabled());
}

} // namespace
