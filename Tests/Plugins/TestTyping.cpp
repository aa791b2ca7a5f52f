#include "Editing/olEditedPage.h"
#include "Editing/olPendingChanges.h"
#include "Support/PluginTest.h"
#include "Widgets/QOLSlider.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QLocale>
#include <QSpinBox>
#include <QTest>

#include <string>

// Numbers as people type them into the pages, key by key, in the locale of the person.

namespace
{

class Typing : public PluginTest, public testing::WithParamInterface<const char *>
{
protected:
    Typing() : m_before(QLocale()), m_session(QString(), QStringList()), changes(m_session)
    {
        QLocale::setDefault(QLocale(QString::fromLatin1(GetParam())));
        restart();
        writeDefaults();
        for (const char *name : {"Camera", "Navigator", "Step", "Render Options"}) {
            changes.page(module(name));
            module(name).page()->show();
        }
        QApplication::setActiveWindow(module("Camera").page());
    }
    ~Typing() override
    {
        changes.drop();
        QLocale::setDefault(m_before);
    }

    /// Over what stands there, as somebody does who came by the Tab key.
    static void type(QWidget &control, const char *keys)
    {
        QApplication::setActiveWindow(control.window());
        control.setFocus(Qt::TabFocusReason);
        auto *field = qobject_cast<QLineEdit *>(&control);
        (field ? field : control.findChild<QLineEdit *>())->selectAll();
        QTest::keyClicks(&control, QString::fromLatin1(keys));
    }

    static void leave(QWidget &control) { control.clearFocus(); }

    static QString mark(const QWidget &field)
    {
        const auto *action = field.findChild<QAction *>(QStringLiteral("refused"));
        return action ? action->toolTip() : QString();
    }

    static QLineEdit &eyes() { return control<QLineEdit>("Camera", "eyeSeparation"); }

private:
    QLocale m_before;
    olPreferencesSession m_session;

protected:
    olPendingChanges changes;
};

TEST_P(Typing, PointAndCommaAreTheDecimalSign)
{
    auto &fov = control<QOLSlider>("Camera", "fieldOfView");
    for (const char *keys : {"0.5", "0,5", "1,000", ",25"}) {
        type(eyes(), keys);
        leave(eyes());
        const QString point = QString::fromLatin1(keys).replace(QLatin1Char(','), QLatin1Char('.'));
        EXPECT_EQ(eyes().text(), point);
        module("Camera").updateData();
        EXPECT_EQ(boost::any_cast<float>(record().get("Stereo eye separation")), point.toFloat()) << keys;
    }
    auto *field = fov.findChild<QLineEdit *>();
    type(*field, "60,5");
    leave(*field);
    EXPECT_EQ(fov.value(), 60.5);
}

TEST_P(Typing, ASecondSeparatorABlankOrAnApostropheRefusesTheWholeText)
{
    for (const char *keys : {"1,000.5", "1.000,5", "1 000", "1'000", "1,000,000"}) {
        type(eyes(), keys);
        EXPECT_EQ(eyes().text(), QStringLiteral("63")) << keys;
        EXPECT_EQ(mark(eyes()), QStringLiteral("Only a number can be entered here.")) << keys;
        leave(eyes());
    }
    // Two of them in one go, as pasting brings them.
    eyes().selectAll();
    eyes().insert(QStringLiteral("1.000,5"));
    EXPECT_EQ(eyes().text(), QStringLiteral("63"));

    control<QCheckBox>("Navigator", "orbitMode").setChecked(true);
    auto &area = control<QSpinBox>("Navigator", "orbitDetectionArea");
    for (const char *keys : {"1,5", "1.5"}) {
        type(area, keys);
        leave(area);
        EXPECT_EQ(area.value(), 40) << keys;
    }
    type(area, "7");
    EXPECT_EQ(area.value(), 7) << "selected, so that typing begins anew";
}

TEST_P(Typing, WhatIsLeftUnfinishedGoesBackAndIsMarkedWithTheRange)
{
    auto &chord = *control<QWidget>("Step", "tesselation").findChildren<QLineEdit *>().first();
    for (QLineEdit *field : {&eyes(), &chord}) {
        const QString before = field->text();
        for (const char *keys : {"", "-", "1e"}) {
            type(*field, keys);
            if (!*keys)
                QTest::keyClick(field, Qt::Key_Delete);
            leave(*field);
            EXPECT_EQ(field->text(), before) << keys;
        }
    }
    EXPECT_TRUE(changes.isEmpty());

    auto &fov = *control<QOLSlider>("Camera", "fieldOfView").findChild<QLineEdit *>();
    type(fov, "0");
    leave(fov);
    EXPECT_EQ(fov.text(), QStringLiteral("45"));
    EXPECT_EQ(mark(fov), QStringLiteral("Only a number from 1 to 100 can be entered here."));
    type(fov, "5");
    EXPECT_EQ(mark(fov), QString());
}

TEST_P(Typing, WhatTheRecordHoldsStaysWhereNobodyTyped)
{
    record().set("RenderOptions near plane", 0.0f, true);
    changes.drop();
    changes.page(module("Render Options")).finishTyping();
    EXPECT_EQ(control<QLineEdit>("Render Options", "nearPlane").text(), QStringLiteral("0"));
}

TEST_P(Typing, AnUnfinishedNumberIsNotTakenBackFromThePage)
{
    type(eyes(), "-");
    changes.page(module("Camera")).finishTyping();
    module("Camera").updateData();
    EXPECT_EQ(boost::any_cast<float>(record().get("Stereo eye separation")), 63.0f);
}

INSTANTIATE_TEST_SUITE_P(Locales, Typing, testing::Values("C", "de_DE", "ja_JP"),
                         [](const auto &locale) { return std::string(locale.param).substr(0, 2); });

} // namespace
