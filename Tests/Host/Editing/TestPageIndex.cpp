#include "Editing/olPageIndex.h"

#include "Widgets/QOLCollapsibleFrame.h"
#include "Widgets/QOLColorManipulator.h"
#include "Widgets/QOLSlider.h"
#include "Widgets/QOLWheelPrec.h"

#include <QtWidgets>
#include <gtest/gtest.h>

namespace
{

template <class Control> Control *labelled(QWidget &place, const QString &text)
{
    auto *label = new QLabel(text, &place);
    auto *control = new Control(&place);
    label->setBuddy(control);
    return control;
}

QOLCollapsibleFrame *frame(QWidget &place, const QString &caption)
{
    auto *frame = new QOLCollapsibleFrame(&place);
    frame->setCaption(caption);
    return frame;
}

/// A page with every kind of place: tabs, folding frames and groups.
class PageIndex : public testing::Test
{
protected:
    PageIndex()
    {
        tabs.addTab(first, QStringLiteral("&Quality"));
        tabs.addTab(second, QStringLiteral("Paths"));
    }

    [[nodiscard]] QWidget *found(const QString &text) const
    {
        const olPageIndex index(page);
        const olPageControlFound found = index.find(text);
        return found.control ? found.control->widget : nullptr;
    }

    [[nodiscard]] QString error(const QString &text) const { return olPageIndex(page).find(text).error; }

    [[nodiscard]] QStringList paths() const
    {
        QStringList paths;
        const olPageIndex index(page);
        for (const olPageControl &control : index.controls())
            paths << control.path();
        return paths;
    }

    QWidget page;
    QTabWidget &tabs = *new QTabWidget(&page);
    QWidget *first = new QWidget;
    QWidget *second = new QWidget;
};

} // namespace

TEST_F(PageIndex, ControlsAreCalledWhatAPersonReads)
{
    auto *box = new QCheckBox(QStringLiteral("Black && &White"), first);
    auto *field = labelled<QLineEdit>(*first, QStringLiteral("&Eye Separation"));
    field->setAccessibleName(QStringLiteral("Distance"));
    auto *editor = new QPlainTextEdit(first);
    editor->setAccessibleName(QStringLiteral("White List"));

    EXPECT_EQ(found("Black & White"), box);
    EXPECT_EQ(found("Eye Separation"), field);
    EXPECT_EQ(found("White List"), editor);
    EXPECT_EQ(found("Distance"), nullptr) << "what is called for screen readers only must not hide the label's text";
    EXPECT_EQ(found("&Eye Separation"), nullptr);

    auto *both = labelled<QCheckBox>(*first, QStringLiteral("Material Preview"));
    both->setText(QStringLiteral("Use OpenGL"));
    EXPECT_EQ(found("Use OpenGL"), both);
    EXPECT_EQ(found("Material Preview"), both);
}

TEST_F(PageIndex, CaptionsTellEqualTextsApart)
{
    QWidget *low = frame(*first, QStringLiteral("Low"));
    QWidget *high = frame(*first, QStringLiteral("High"));
    auto *inLow = labelled<QComboBox>(*low, QStringLiteral("Samples"));
    auto *inHigh = labelled<QComboBox>(*high, QStringLiteral("Samples"));

    EXPECT_EQ(found("Low/Samples"), inLow);
    EXPECT_EQ(found("Quality/High/Samples"), inHigh);
    EXPECT_EQ(found("Samples"), nullptr);
    EXPECT_EQ(error("Samples"), "2 controls answer to \"Samples\": \"Quality/Low/Samples\", \"Quality/High/Samples\"");
    EXPECT_EQ(found("High/Quality/Samples"), nullptr) << "captions count from the outside in";
    EXPECT_EQ(error("Low/Sample"),
              "there is no control \"Low/Sample\"; there is: \"Quality/Low/Samples\", \"Quality/High/Samples\"");
}

TEST_F(PageIndex, AnExactTextWinsOverAPath)
{
    QWidget *low = frame(*first, QStringLiteral("Low"));
    auto *inside = new QCheckBox(QStringLiteral("Samples"), low);
    auto *exact = new QCheckBox(QStringLiteral("Low/Samples"), second);

    EXPECT_EQ(found("Low/Samples"), exact);
    EXPECT_EQ(found("Quality/Low/Samples"), inside);
    EXPECT_EQ(found("Paths/Low/Samples"), exact) << "a slash may be part of a text";
}

TEST_F(PageIndex, GroupsToBeCheckedAreControlsAndTablesBearTheCaptionOfTheirFrameElseOfTheirTab)
{
    auto *plain = new QGroupBox(QStringLiteral("Stereo"), first);
    auto *checkable = new QGroupBox(QStringLiteral("Allowed &hosts"), first);
    checkable->setCheckable(true);
    auto *field = labelled<QLineEdit>(*plain, QStringLiteral("Separation"));
    auto *inFrame = new QTreeWidget(frame(*first, QStringLiteral("Background")));
    auto *inTab = new QTableWidget(second);
    auto *named = labelled<QTableWidget>(*frame(*second, QStringLiteral("Frame")), QStringLiteral("Entries"));
    const std::pair<const char *, QWidget *> expected[] = {
        {"Stereo", nullptr},     {"Quality", nullptr}, {"Allowed hosts", checkable}, {"Stereo/Separation", field},
        {"Background", inFrame}, {"Paths", inTab},     {"Entries", named},           {"Frame", nullptr}};
    for (const auto &[text, control] : expected)
        EXPECT_EQ(found(QLatin1String(text)), control) << text;
}

TEST_F(PageIndex, InnerPartsAreNoControlsAndTheOthersComeInTheOrderOfTheForm)
{
    auto *scrolled = new QScrollArea(first);
    auto *inside = new QWidget;
    scrolled->setWidget(inside);
    auto *combo = labelled<QComboBox>(*inside, QStringLiteral("Combo"));
    combo->setEditable(true);
    labelled<QSpinBox>(*inside, QStringLiteral("Spin"));
    labelled<QOLSlider>(*inside, QStringLiteral("Slider"));
    labelled<QOLWheelPrec>(*inside, QStringLiteral("Wheel"));
    labelled<QOLColorManipulator>(*inside, QStringLiteral("Colour"));
    labelled<QTreeWidget>(*inside, QStringLiteral("Tree"));
    auto *dialog = new QDialog(inside);
    new QPushButton(QStringLiteral("Elsewhere"), dialog);

    new QCheckBox(QStringLiteral("Second"), second);
    new QCheckBox(QStringLiteral("Below"), &page);
    EXPECT_EQ(paths(), (QStringList{"Quality/Combo", "Quality/Spin", "Quality/Slider", "Quality/Wheel",
                                    "Quality/Colour", "Quality/Tree", "Paths/Second", "Below"}));
}

TEST_F(PageIndex, HiddenIsWhatThePageHides)
{
    auto *place = frame(*second, QStringLiteral("Frame"));
    auto *box = new QCheckBox(QStringLiteral("Box"), place);
    const auto shown = [&] { return olPageIndex::isShown(page, *box); };

    EXPECT_TRUE(shown()) << "its tab was never in front";
    page.show();
    tabs.setCurrentIndex(1);
    tabs.setCurrentIndex(0);
    EXPECT_TRUE(shown()) << "its tab is not in front any more";
    place->setFolded(true);
    EXPECT_TRUE(shown()) << "its frame is folded";

    place->hide();
    EXPECT_FALSE(shown());
    place->show();
    box->hide();
    EXPECT_FALSE(shown());
    box->show();
    page.hide();
    EXPECT_TRUE(shown()) << "the page itself is the host's to show";
    tabs.removeTab(1);
    EXPECT_FALSE(shown());
    EXPECT_EQ(found("Frame/Box"), box) << "still there, to be told that it is hidden";
}
