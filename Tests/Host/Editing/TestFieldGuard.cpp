#include "Editing/olFieldGuard.h"
#include "Kernel/olOSGWidget.h"
#include "Session/olPluginLoader.h"
#include "State/olHostState.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"

#include <QAction>
#include <QLineEdit>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

namespace
{

QString told(const QLineEdit *field)
{
    const auto *mark = field->findChild<QAction *>(QStringLiteral("refused"));
    return mark ? mark->toolTip() : QString();
}

} // namespace

TEST(FieldGuard, WhatTheHostRefusesIsMarkedAtItsFieldUntilItIsFollowed)
{
    olPluginLoader plugin;
    ASSERT_EQ(plugin.load(QStringLiteral(ORLO_PLUGIN_FILE)).error(), QString());
    const auto *module = olPreferencesRegistry::the().find(QStringLiteral("WebInterface"));
    const auto fieldOf = [module](const char *key) {
        for (QSpinBox *box : module->page()->findChildren<QSpinBox *>()) {
            if (box->property("olSettingKeys").toStringList().contains(QLatin1String(key)))
                return box->findChild<QLineEdit *>();
        }
        return static_cast<QLineEdit *>(nullptr);
    };
    QLineEdit *port = fieldOf("WebInterface port");
    ASSERT_NE(port, nullptr);
    const QString reason = QStringLiteral("The web server does not listen on port 70000.");
    olHostState &host = olHostState::the();
    host.refuse("WebInterface port", reason);
    {
        const olFieldGuard guard(*module);
        EXPECT_EQ(told(port), reason);
        EXPECT_EQ(told(fieldOf("WebInterface ssl port")), QString());
        host.refuse("WebInterface port", {});
        EXPECT_EQ(told(port), QString());
        host.refuse("WebInterface port", reason);
        EXPECT_EQ(told(port), reason);
        QTest::keyClicks(port, QStringLiteral("1"));
        EXPECT_EQ(told(port), QString()) << "it is being mended";
        host.refuse("WebInterface port", reason);
    }
    EXPECT_EQ(told(port), QString());
    host.refuse("WebInterface port", {});
}

TEST(FieldGuard, PlanesThatNoCameraHasAreMarkedAtTheFieldThatIsWrongWheneverItShowsThem)
{
    olPluginLoader plugin;
    ASSERT_EQ(plugin.load(QStringLiteral(ORLO_PLUGIN_FILE)).error(), QString());
    const auto *module = olPreferencesRegistry::the().find(QStringLiteral("Render Options"));
    auto *nearest = module->page()->findChild<QLineEdit *>(QStringLiteral("nearPlane"));
    auto *farthest = module->page()->findChild<QLineEdit *>(QStringLiteral("farPlane"));
    const olFieldGuard guard(*module);
    nearest->setText(QStringLiteral("10"));
    farthest->setText(QStringLiteral("5"));
    olOSGWidget::setNearFarPlaneLimit(true, 10.0f, 5.0f);
    EXPECT_EQ(told(nearest), QString());
    EXPECT_TRUE(told(farthest).startsWith(QStringLiteral("The clipping planes 10 and 5 are refused: ")));
    QTest::keyClicks(farthest, QStringLiteral("0"));
    EXPECT_EQ(told(farthest), QString());
    farthest->setText(QStringLiteral("5"));
    EXPECT_NE(told(farthest), QString()) << "what is still in force is shown again";
    olOSGWidget::setNearFarPlaneLimit(true, 0.0f, 0.0f);
    EXPECT_NE(told(nearest), QString());
    olOSGWidget::setNearFarPlaneLimit(false, 10.0f, 5.0f);
    EXPECT_EQ(told(nearest) + told(farthest), QString());
}
