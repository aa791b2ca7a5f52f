#include "Widgets/QOLCollapsibleFrame.h"
#include "Widgets/QOLColorDialog.h"
#include "Widgets/QOLColorManipulator.h"
#include "Widgets/QOLSlider.h"
#include "Widgets/QOLSpiner.h"
#include "Widgets/QOLWheelPrec.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QFormLayout>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include <cmath>

namespace
{

QLineEdit &fieldOf(const QWidget &control, int index = 0) { return *control.findChildren<QLineEdit *>().at(index); }

void type(QWidget &field, const QString &text)
{
    field.setFocus();
    static_cast<QLineEdit &>(field).selectAll();
    QTest::keyClicks(&field, text);
}

void typeAndEnter(QWidget &field, const QString &text)
{
    type(field, text);
    QTest::keyClick(&field, Qt::Key_Return);
}

void show(QWidget &window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

bool turnWheel(QWidget &widget, int notches)
{
    QWheelEvent event(QPointF(3, 3), widget.mapToGlobal(QPoint(3, 3)), {}, {0, notches * 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

/// A page as a form makes it: the frames' content directly in them, and a tab order of the inputs alone.
class FoldPage : public QWidget
{
    Q_OBJECT

public:
    FoldPage()
    {
        auto *layout = new QVBoxLayout(this);
        fill(first, firstBox, firstSlider, "first slider");
        fill(second, secondBox, secondSlider, "second slider");
        layout->addWidget(first);
        layout->addWidget(second);
        layout->addStretch();
        first->setCaption("Base & more");
        second->setCaption("Advanced");
        setTabOrder(firstBox, firstSlider);
        setTabOrder(firstSlider, secondBox);
        setTabOrder(secondBox, secondSlider);
    }

    static QAbstractButton &header(const QWidget &frame)
    {
        return *frame.findChild<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly);
    }

    /// The stops of the Tab key from the first header on, until it comes round.
    [[nodiscard]] QStringList stops(Qt::Key key) const
    {
        header(*first).setFocus();
        QStringList names;
        do {
            names << nameOf(*QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), key);
        } while (QApplication::focusWidget() != &header(*first) && names.size() < 20);
        return names;
    }

    QOLCollapsibleFrame *first = new QOLCollapsibleFrame(this);
    QOLCollapsibleFrame *second = new QOLCollapsibleFrame(this);
    QCheckBox *firstBox = new QCheckBox("first box", first);
    QOLSlider *firstSlider = new QOLSlider(first);
    QCheckBox *secondBox = new QCheckBox("second box", second);
    QOLSlider *secondSlider = new QOLSlider(second);

private:
    static void fill(QOLCollapsibleFrame *frame, QCheckBox *box, QOLSlider *slider, const char *label)
    {
        auto *form = new QFormLayout(frame);
        form->addRow(box);
        form->addRow(label, slider);
    }

    static QString nameOf(const QWidget &stop)
    {
        const auto *box = qobject_cast<const QCheckBox *>(&stop);
        return box ? box->text() : stop.accessibleName();
    }
};

TEST(HostNumbers, StayExactWhenTheFieldIsOnlyVisited)
{
    QOLSlider slider;
    show(slider);
    slider.setRange(1.0, 100.0);
    slider.setValue(63.123456789);
    EXPECT_EQ(fieldOf(slider).text(), "63.1235");
    QTest::keyClick(&fieldOf(slider), Qt::Key_Return);
    fieldOf(slider).clearFocus();
    EXPECT_EQ(slider.value(), 63.123456789);

    type(fieldOf(slider), "50");
    QTest::keyClick(&fieldOf(slider), Qt::Key_Escape);
    EXPECT_EQ(slider.value(), 63.123456789);
}

TEST(HostNumbers, AreWhatAScreenReaderSaysOfTheHandle)
{
    QOLSlider slider;
    slider.setRange(1.0, 100.0);
    slider.setValue(45.5);
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(slider.findChild<QSlider *>());
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->text(QAccessible::Value), "45.5");
    QAccessibleValueInterface *value = spoken->valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->currentValue().toDouble(), 45.5);
    EXPECT_EQ(value->minimumValue().toDouble(), 1.0);
    EXPECT_EQ(value->maximumValue().toDouble(), 100.0);
    value->setCurrentValue(60.0);
    EXPECT_EQ(slider.value(), 60.0);
}

TEST(HostNumbers, AreClampedAndRoundOnlyWhereDecimalsAreSet)
{
    QOLSlider slider;
    QSignalSpy changes(&slider, &QOLSlider::valueChanged);
    slider.setValue(7.0);
    slider.setValue(std::nan(""));
    EXPECT_EQ(slider.value(), 1.0);
    slider.setRange(1.5, 100.0);
    EXPECT_EQ(slider.value(), 1.5);
    EXPECT_EQ(changes.size(), 2);

    QOLWheelPrec wheel;
    wheel.setValue(1.23456);
    wheel.setDecimals(2);
    EXPECT_EQ(wheel.value(), 1.23);
    wheel.setMinimum(2.0);
    EXPECT_EQ(wheel.value(), 2.0);
    wheel.setValue(-15000.0);
    EXPECT_EQ(wheel.value(), 2.0);
}

TEST(HostNumbers, AreReadWhileTheyAreBeingTypedAndSignalledOnce)
{
    QOLSlider slider;
    show(slider);
    QSignalSpy changes(&slider, &QOLSlider::valueChanged);
    type(fieldOf(slider), "0.75");
    EXPECT_EQ(slider.value(), 0.75);
    EXPECT_EQ(changes.size(), 0);
    fieldOf(slider).clearFocus();
    EXPECT_EQ(changes.size(), 1);
    slider.setValue(0.25);
    EXPECT_EQ(fieldOf(slider).text(), "0.25");
}

TEST(HostSlider, StepsByKeyInFieldAndHandle)
{
    QOLSlider slider;
    slider.setRange(1.0, 100.0);
    slider.setSteps(0.1, 10.0);
    slider.setValue(45.0);
    show(slider);
    QTest::keyClick(&fieldOf(slider), Qt::Key_Up);
    EXPECT_EQ(slider.value(), 45.1);
    QTest::keyClick(&fieldOf(slider), Qt::Key_PageDown);
    EXPECT_EQ(slider.value(), 35.1);

    auto &handle = *slider.findChild<QSlider *>();
    QTest::keyClick(&handle, Qt::Key_Right);
    EXPECT_EQ(slider.value(), 35.2);
}

TEST(HostSlider, HandleStopsWhereTypingGoesOn)
{
    QOLSlider slider;
    slider.setProperty("minValue", 0.05);
    slider.setProperty("hardMaxValue", 1);
    slider.setProperty("hardMinValue", 0);
    show(slider);
    auto &handle = *slider.findChild<QSlider *>();
    slider.setValue(0.5);
    QTest::keyClick(&handle, Qt::Key_Home);
    EXPECT_EQ(slider.value(), 0.05);
    typeAndEnter(fieldOf(slider), "0.02");
    EXPECT_EQ(slider.value(), 0.02);
    EXPECT_EQ(handle.value(), handle.minimum());
    QTest::keyClick(&handle, Qt::Key_Left);
    EXPECT_EQ(slider.value(), 0.02) << "a step down never goes up";
}

TEST(HostWheel, TurnsByDragFineAndCoarse)
{
    QOLWheelPrec wheel;
    wheel.setDecimals(2);
    show(wheel);
    QWidget *rim = wheel.childAt(5, wheel.height() / 2);
    const int step = rim->fontMetrics().averageCharWidth();
    QTest::mousePress(rim, Qt::LeftButton, {}, {5, 5});
    const auto drag = [&](int x, Qt::KeyboardModifiers keys) {
        QMouseEvent move(QEvent::MouseMove, QPointF(x, 5), Qt::LeftButton, Qt::LeftButton, keys);
        QApplication::sendEvent(rim, &move);
    };
    drag(5 + 3 * step, Qt::NoModifier);
    EXPECT_EQ(wheel.value(), 0.3);
    drag(5 + 4 * step, Qt::ShiftModifier);
    EXPECT_EQ(wheel.value(), 0.31);
    drag(5 + 5 * step, Qt::ControlModifier);
    EXPECT_EQ(wheel.value(), 1.31);
    QTest::keyClick(rim, Qt::Key_Left);
    EXPECT_EQ(wheel.value(), 1.21);
    rim->setFocus();
    const QImage focused = rim->grab().toImage();
    rim->clearFocus();
    EXPECT_NE(rim->grab().toImage(), focused) << "where the keys go is to be seen";
}

TEST(HostWidgets, LeaveTheWheelToThePageUntilTheyHaveTheFocus)
{
    QWidget page;
    auto *other = new QLineEdit(&page);
    auto *slider = new QOLSlider(&page);
    auto *wheel = new QOLWheelPrec(&page);
    auto *spiner = new QOLSpiner(&page);
    show(page);
    other->setFocus();
    for (QWidget *target : page.findChildren<QWidget *>())
        EXPECT_FALSE(turnWheel(*target, 1)) << target->metaObject()->className();
    EXPECT_EQ(slider->value(), 0.0);
    EXPECT_EQ(wheel->value(), 0.0);
    EXPECT_EQ(spiner->value(), 0);

    slider->setFocus();
    EXPECT_TRUE(turnWheel(*slider->findChild<QSlider *>(), 2));
    EXPECT_EQ(slider->value(), 0.02);
    spiner->setFocus();
    EXPECT_TRUE(turnWheel(*spiner, 1));
    EXPECT_EQ(spiner->value(), 1);
}

TEST(HostWidgets, AnswerToTheirLabelAndNameTheirField)
{
    QWidget page;
    QFormLayout layout(&page);
    auto *slider = new QOLSlider(&page);
    layout.addRow("&Field of View", slider);
    auto *color = new QOLColorManipulator(&page);
    color->setAccessibleName("Selection Color");
    layout.addRow(color);
    show(page);
    QTest::keyClick(&page, Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget(), &fieldOf(*slider));
    EXPECT_EQ(fieldOf(*slider).accessibleName(), "Field of View");
    EXPECT_EQ(fieldOf(*color, 1).accessibleName(), "Selection Color, Green");
    for (const QWidget *part : page.findChildren<QLineEdit *>())
        EXPECT_TRUE(part->property("olInnerPart").toBool());
}

TEST(HostFrame, FoldsWithoutTouchingWhatThePageHides)
{
    FoldPage page;
    page.firstBox->hide();
    show(page);
    QAbstractButton &header = FoldPage::header(*page.first);
    const int unfolded = page.first->height();
    QTest::mouseClick(&header, Qt::LeftButton);
    QTRY_COMPARE(page.first->height(), header.height());
    EXPECT_TRUE(page.first->isFolded());
    EXPECT_TRUE(page.firstBox->isHidden());
    EXPECT_FALSE(page.firstSlider->isHidden());
    EXPECT_TRUE(page.firstSlider->isEnabled());
    EXPECT_TRUE(page.firstSlider->visibleRegion().isEmpty());

    QTest::keyClick(&header, Qt::Key_Return);
    EXPECT_FALSE(page.first->isFolded());
    QTRY_COMPARE(page.first->height(), unfolded);
}

TEST(HostFrame, TabVisitsHeadersInPlaceAndPassesOverFoldedContent)
{
    FoldPage page;
    show(page);
    EXPECT_EQ(page.stops(Qt::Key_Tab),
              QStringList({"Base & more", "first box", "first slider", "Advanced", "second box", "second slider"}));
    page.first->setFolded(true);
    EXPECT_EQ(page.stops(Qt::Key_Tab), QStringList({"Base & more", "Advanced", "second box", "second slider"}));
    EXPECT_EQ(page.stops(Qt::Key_Backtab), QStringList({"Base & more", "second slider", "second box", "Advanced"}));
    page.first->setFolded(false);
}

TEST(HostFrame, MovesTheFocusOutOnFoldingAndUnfoldsForWhoAsksForContent)
{
    FoldPage page;
    show(page);
    page.secondSlider->setFocus();
    page.second->setFolded(true);
    EXPECT_EQ(QApplication::focusWidget(), &FoldPage::header(*page.second));
    page.secondBox->setFocus(Qt::ShortcutFocusReason);
    EXPECT_FALSE(page.second->isFolded());
    EXPECT_TRUE(page.secondBox->hasFocus());
}

TEST(HostFrame, IsRememberedForTheSessionByPageAndCaption)
{
    {
        FoldPage page;
        show(page);
        page.second->setFolded(true);
    }
    FoldPage again;
    show(again);
    EXPECT_FALSE(again.first->isFolded());
    EXPECT_TRUE(again.second->isFolded());
    again.second->setFolded(false);

    QWidget elsewhere;
    QOLCollapsibleFrame frame(&elsewhere);
    frame.setCaption("Advanced");
    show(elsewhere);
    EXPECT_FALSE(frame.isFolded());
}

TEST(HostColor, KeepsItsThreeFloatsAndSignalsOnlyChanges)
{
    QOLColorManipulator color;
    QSignalSpy changes(&color, &QOLColorManipulator::colorChanged);
    const osg::Color3f grey(0.25f, 1.0f / 3.0f, 1.5f);
    color.setColor(grey);
    color.setColor(grey);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(color.getColor().green(), 1.0f / 3.0f);
    EXPECT_EQ(color.getColor().blue(), 1.5f);
    color.setColor({0.25f, std::nextafter(1.0f / 3.0f, 1.0f), 1.5f});
    EXPECT_EQ(changes.size(), 2) << "the colour class calls these equal";

    show(color);
    typeAndEnter(fieldOf(color), "0.1");
    EXPECT_EQ(changes.last().at(0).toFloat(), 0.1f);
    EXPECT_EQ(color.getColor().red(), 0.1f);
    EXPECT_EQ(color.getColor().blue(), 1.5f);
}

TEST(HostColor, IsPickedInTheDialogAndKeptOnRejection)
{
    QOLColorManipulator color;
    color.setColor({0.207843f, 0.74902f, 0.25f});
    QSignalSpy changes(&color, &QOLColorManipulator::colorChanged);
    show(color);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    auto *dialog = color.findChild<QOLColorDialog *>();
    ASSERT_TRUE(dialog && dialog->isVisible());
    QTest::keyClick(dialog->findChild<QColorDialog *>(), Qt::Key_Escape);
    EXPECT_FALSE(dialog->isVisible()) << "Escape in the picker closes the whole dialog";

    color.findChild<QPushButton *>()->click();
    EXPECT_TRUE(dialog->findChild<QColorDialog *>()->isVisible());
    dialog->accept();
    EXPECT_EQ(changes.size(), 0) << "confirming without an edit rounds nothing";
    EXPECT_EQ(color.getColor().red(), 0.207843f);

    color.findChild<QPushButton *>()->click();
    dialog->findChild<QColorDialog *>()->setCurrentColor(QColor(255, 51, 0));
    dialog->accept();
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(color.getColor().green(), 0.2f);
}

} // namespace

#include "TestHostWidgets.moc"
