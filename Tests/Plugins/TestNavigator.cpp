#include "Support/PluginTest.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QMetaObject>

namespace
{

class Navigator : public PluginTest
{
protected:
    Navigator() { fill("Navigator"); }

    static bool callSlot(const char *name, QGenericArgument argument)
    {
        return QMetaObject::invokeMethod(module("Navigator").page(), name, argument);
    }
    static bool isEnabled(const char *name) { return control<QWidget>("Navigator", name).isEnabled(); }
    static int indexOf(const char *name) { return control<QComboBox>("Navigator", name).currentIndex(); }
    static bool isChecked(const char *name) { return control<QAbstractButton>("Navigator", name).isChecked(); }
    static void check(const char *name) { control<QAbstractButton>("Navigator", name).setChecked(true); }
};

TEST_F(Navigator, TheSlotsAreFoundByNameAndRunTheRules)
{
    EXPECT_TRUE(callSlot("toggledAnimateCameraChange", Q_ARG(bool, false)));
    EXPECT_FALSE(isEnabled("duration") || isEnabled("durationLabel"));
    EXPECT_TRUE(callSlot("toggledOrbitMode", Q_ARG(bool, true)));
    EXPECT_TRUE(isEnabled("orbitDetectionAreaLabel") && isEnabled("orbitDetectionTimeLabel"));
    EXPECT_TRUE(callSlot("changedInteractionMode", Q_ARG(int, 1)));
    EXPECT_FALSE(isEnabled("pivotBasedPanning"));
    EXPECT_TRUE(isEnabled("panningSpeedLabel"));
    EXPECT_TRUE(callSlot("toggledPivotBasedPanning", Q_ARG(bool, true)));
    EXPECT_TRUE(callSlot("changedNavigationSpeedMode", Q_ARG(int, 1)));
}

TEST_F(Navigator, AnIndexWithoutPresetChangesNothing)
{
    check("invertDollyAxis");
    // A rule that ran would enable the speed's field again or disable it.
    check("pivotBasedPanning");
    control<QWidget>("Navigator", "panningSpeed").setEnabled(false);
    for (const int index : {-1, 3, 1000}) {
        EXPECT_TRUE(callSlot("changedInteractionMode", Q_ARG(int, index)));
        EXPECT_TRUE(isChecked("invertDollyAxis"));
        EXPECT_TRUE(isChecked("pivotBasedPanning"));
        EXPECT_EQ(indexOf("speedMode"), 1);
        EXPECT_FALSE(isEnabled("panningSpeed"));
    }
}

} // namespace
