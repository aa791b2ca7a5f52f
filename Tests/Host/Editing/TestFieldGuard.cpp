#include "Editing/olFieldGuard.h"
#include "Kernel/olOSGWidget.h"
#include "State/olHostState.h"
#include "Support/PluginTest.h"

#include <QAction>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>

namespace
{

class FieldGuard : public PluginTest
{
protected:
    static QString told(const QWidget &field)
    {
        const auto *mark = field.findChild<QAction *>("refused");
        return mark ? mark->toolTip() : QString();
    }
};

TEST_F(FieldGuard, WhatTheHostRefusesIsMarkedAtItsFieldUntilItIsFollowed)
{
    auto &port = *control<QSpinBox>("WebInterface", "port").findChild<QLineEdit *>();
    const QString reason = "The web server does not listen on port 70000.";
    olHostState &host = olHostState::the();
    host.refuse("WebInterface port", reason);
    {
        const olFieldGuard guard(module("WebInterface"));
        EXPECT_EQ(told(port), reason);
        EXPECT_EQ(told(control<QSpinBox>("WebInterface", "sslPort")), QString());
        host.refuse("WebInterface port", {});
        EXPECT_EQ(told(port), QString());
        host.refuse("WebInterface port", reason);
        EXPECT_EQ(told(port), reason);
        QTest::keyClicks(&port, "1");
        EXPECT_EQ(told(port), QString()) << "it is being mended";
        host.refuse("WebInterface port", reason);
    }
    EXPECT_EQ(told(port), QString());
}

TEST_F(FieldGuard, PlanesThatNoCameraHasAreMarkedAtTheFieldThatIsWrongWheneverItShowsThem)
{
    auto &nearest = control<QLineEdit>("Render Options", "nearPlane");
    auto &farthest = control<QLineEdit>("Render Options", "farPlane");
    const olFieldGuard guard(module("Render Options"));
    nearest.setText("10");
    farthest.setText("5");
    olOSGWidget::setNearFarPlaneLimit(true, 10.0f, 5.0f);
    EXPECT_EQ(told(nearest), QString());
    EXPECT_TRUE(told(farthest).startsWith("The clipping planes 10 and 5 are refused: "));
    QTest::keyClicks(&farthest, "0");
    EXPECT_EQ(told(farthest), QString());
    farthest.setText("5");
    EXPECT_NE(told(farthest), QString()) << "what is still in force is shown again";
    olOSGWidget::setNearFarPlaneLimit(true, 0.0f, 0.0f);
    EXPECT_NE(told(nearest), QString());
    olOSGWidget::setNearFarPlaneLimit(false, 10.0f, 5.0f);
    EXPECT_EQ(told(nearest) + told(farthest), QString());
}

} // namespace
