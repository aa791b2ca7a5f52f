#include "Widgets/olRgbFields.h"

#include "Widgets/olInnerParts.h"
#include "Widgets/olNumberField.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>

olRgbFields::olRgbFields(QWidget *parent) : QWidget(parent)
{
    olInnerParts::mark(this);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (std::size_t channel = 0; channel < m_fields.size(); ++channel) {
        auto *label = new QLabel(this);
        auto *field = new olNumberField(this);
        olInnerParts::mark(label);
        olInnerParts::mark(field);
        field->setRange(0.0, 1.0);
        field->setSteps(0.01, 0.1);
        connect(field, &olNumberField::edited, this, &olRgbFields::edited);
        layout->addWidget(label);
        layout->addWidget(field, 1);
        m_labels[channel] = label;
        m_fields[channel] = field;
    }
    translate();
}

void olRgbFields::setColor(const osg::Color3f &color)
{
    m_fields[0]->setValue(color.red());
    m_fields[1]->setValue(color.green());
    m_fields[2]->setValue(color.blue());
}

osg::Color3f olRgbFields::color() const
{
    const auto channel = [this](std::size_t index) { return static_cast<float>(m_fields[index]->value()); };
    return {channel(0), channel(1), channel(2)};
}

osg::Color3f olRgbFields::committedColor() const
{
    const auto channel = [this](std::size_t index) { return static_cast<float>(m_fields[index]->committed()); };
    return {channel(0), channel(1), channel(2)};
}

QString olRgbFields::channelName(int channel)
{
    const std::array<QString, 3> names{tr("Red"), tr("Green"), tr("Blue")};
    return names.at(static_cast<std::size_t>(channel));
}

bool olRgbFields::same(const osg::Color3f &left, const osg::Color3f &right)
{
    return left.red() == right.red() && left.green() == right.green() && left.blue() == right.blue();
}

QColor olRgbFields::onScreen(const osg::Color3f &color)
{
    // Written so that what is no number comes out as 0.
    const auto shown = [](float channel) { return channel > 0.0f ? std::min(channel, 1.0f) : 0.0f; };
    return QColor::fromRgbF(shown(color.red()), shown(color.green()), shown(color.blue()));
}

void olRgbFields::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        translate();
}

void olRgbFields::translate()
{
    m_labels[0]->setText(tr("R", "red"));
    m_labels[1]->setText(tr("G", "green"));
    m_labels[2]->setText(tr("B", "blue"));
    for (std::size_t channel = 0; channel < m_fields.size(); ++channel)
        m_fields[channel]->setAccessibleName(channelName(static_cast<int>(channel)));
}
