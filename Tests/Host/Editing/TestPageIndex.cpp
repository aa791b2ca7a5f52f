#include "Editing/olPageIndex.h"

#include "Widgets/QOLCollapsibleFrame.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QWidget>
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

/// A page with two tabs.
class PageIndex : public testing::Test
{
protected:
    PageIndex()
    {
        tabs.addTab(first, "&Quality");
        tabs.addTab(second, "Paths");
    }

    [[nodiscard]] QWidget *found(const QString &text) const
    {
        const olPageIndex index(page);
        const olPageControlFound found = index.find(text);
        return found.control ? found.control->widget : nullptr;
    }

    QWidget page;
    QTabWidget &tabs = *new QTabWidget(&page);
    QWidget *first = new QWidget;
    QWidget *second = new QWidget;
};

} // namespace

TEST_F(PageIndex, ControlsAreCalledWhatAPersonReads)
{
    auto *box = new QCheckBox("Black && &White", first);
    auto *field = labelled<QLineEdit>(*first, "&Eye Separation");
    field->setAccessibleName("Distance");
    auto *editor = new QPlainTextEdit(first);
    editor->setAccessibleName("White List");

    EXPECT_EQ(found("Black & White"), box);
    EXPECT_EQ(found("Eye Separation"), field);
    EXPECT_EQ(found("White List"), editor);
    EXPECT_EQ(found("Distance"), nullptr) << "what is called for screen readers only must not hide the label's text";
    EXPECT_EQ(found("&Eye Separation"), nullptr);

    auto *both = labelled<QCheckBox>(*first, "Material Preview");
    both->setText("Use OpenGL");
    EXPECT_EQ(found("Use OpenGL"), both);
    EXPECT_EQ(found("Material Preview"), both);
}

TEST_F(PageIndex, AnExactTextWinsOverAPath)
{
    QWidget *low = frame(*first, "Low");
    auto *inside = new QCheckBox("Samples", low);
    auto *exact = new QCheckBox("Low/Samples", second);

    EXPECT_EQ(found("Low/Samples"), exact);
    EXPECT_EQ(found("Quality/Low/Samples"), inside);
    EXPECT_EQ(found("Paths/Low/Samples"), exact) << "a slash may be part of a text";
    EXPECT_EQ(found("Low/Quality/Samples"), nullptr) << "captions count from the outside in";
}

TEST_F(PageIndex, HiddenIsWhatThePageHides)
{
    auto *place = frame(*second, "Frame");
    auto *box = new QCheckBox("Box", place);
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
