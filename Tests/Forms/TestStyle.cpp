#include "Dialog/olPageStyle.h"
#include "Forms/Palettes.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QSlider>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabWidget>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace
{

/// As guidelines for accessibility measure it.
double luminance(const QColor &color)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &first, const QColor &second)
{
    const double one = luminance(first) + 0.05;
    const double other = luminance(second) + 0.05;
    return std::max(one, other) / std::min(one, other);
}

/// Of the border of a box to what lies around it, on a line from outside into its middle.
double borderContrast(QWidget &widget, const QRect &box)
{
    const QImage picture = widget.grab().toImage();
    const double ratio = picture.devicePixelRatio();
    const auto at = [&](double x) { return picture.pixelColor(int(x * ratio), int(box.center().y() * ratio)); };
    const QColor outside = at(box.left() - 2.0);
    double best = 1.0;
    for (double x = box.left(); x < box.center().x(); x += 0.5)
        best = std::max(best, std::min(contrast(at(x), outside), contrast(at(x), at(box.center().x()))));
    return best;
}

} // namespace

TEST(Style, AnUncheckedBoxIsSeenInEveryPalette)
{
    for (const QPalette &palette : {QApplication::palette(), Palettes::dark(), Palettes::contrast()}) {
        // A tab may be of another shade than its window.
        QTabWidget window;
        window.setPalette(palette);
        auto *tab = new QWidget;
        window.addTab(tab, QStringLiteral("Picture"));
        auto *layout = new QVBoxLayout(tab);
        auto *check = new QCheckBox(QStringLiteral("Shadows"));
        auto *group = new QGroupBox(QStringLiteral("Hosts"));
        group->setCheckable(true);
        group->setChecked(false);
        layout->addWidget(check);
        layout->addWidget(group);
        window.resize(300, 200);
        window.show();
        const QStyle &style = *QApplication::style();
        QStyleOptionButton button;
        button.initFrom(check);
        const QRect box = style.subElementRect(QStyle::SE_CheckBoxIndicator, &button, check);
        EXPECT_GE(borderContrast(window, box.translated(check->mapTo(&window, QPoint()))), 3.0);
        QStyleOptionGroupBox frame;
        frame.initFrom(group);
        frame.subControls = QStyle::SC_GroupBoxCheckBox;
        const QRect groupBox = style.subControlRect(QStyle::CC_GroupBox, &frame, QStyle::SC_GroupBoxCheckBox, group);
        EXPECT_GE(borderContrast(window, groupBox.translated(group->mapTo(&window, QPoint()))), 3.0);
        EXPECT_FALSE(group->isChecked());
    }
}

TEST(Style, FieldsAndSlidersAreSeenInTheDark)
{
    for (const QPalette &palette : {Palettes::dark(), Palettes::contrast()}) {
        QTabWidget window;
        window.setPalette(palette);
        auto *tab = new QWidget;
        window.addTab(tab, QStringLiteral("Picture"));
        auto *layout = new QVBoxLayout(tab);
        auto *field = new QLineEdit;
        auto *slider = new QSlider(Qt::Horizontal);
        layout->setContentsMargins(20, 20, 20, 20);
        layout->addWidget(field);
        layout->addWidget(slider);
        window.resize(300, 200);
        window.show();
        EXPECT_GE(borderContrast(window, QRect(field->mapTo(&window, QPoint()), field->size())), 3.0);
        QStyleOptionSlider option;
        option.initFrom(slider);
        option.orientation = Qt::Horizontal;
        option.maximum = slider->maximum();
        const QRect handle =
            QApplication::style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider);
        EXPECT_GE(borderContrast(window, handle.translated(slider->mapTo(&window, QPoint()))), 3.0);
    }
}

TEST(Style, ABoxOfChoicesWithoutAChoiceShowsItsHintAndHasNoFurtherItem)
{
    QComboBox box;
    box.addItems({QStringLiteral("English"), QStringLiteral("Korean")});
    box.setCurrentIndex(-1);
    box.resize(300, box.sizeHint().height());
    box.show();
    const QImage empty = box.grab().toImage();
    box.setProperty(olPageStyle::hintProperty, QStringLiteral("Not chosen"));
    EXPECT_NE(box.grab().toImage(), empty);
    EXPECT_EQ(box.count(), 2);
    EXPECT_EQ(box.currentIndex(), -1);
}
