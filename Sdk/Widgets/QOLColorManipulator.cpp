#include "Widgets/QOLColorManipulator.h"

#include "Widgets/QOLColorDialog.h"
#include "Widgets/olColorSwatch.h"
#include "Widgets/olInnerParts.h"
#include "Widgets/olNumberField.h"
#include "Widgets/olRgbFields.h"

#include <QHBoxLayout>

QOLColorManipulator::QOLColorManipulator(QWidget *parent)
    : QWidget(parent), m_swatch(new olColorSwatch(this)), m_channels(new olRgbFields(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_swatch);
    layout->addWidget(m_channels, 1);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setFocusProxy(m_swatch);
    setFocusPolicy(Qt::StrongFocus);

    auto *parts = new olInnerParts(this);
    parts->add(m_swatch, [] { return tr("Choose Color"); });
    parts->add(m_channels->fields()[0], [] { return olRgbFields::channelName(0); });
    parts->add(m_channels->fields()[1], [] { return olRgbFields::channelName(1); });
    parts->add(m_channels->fields()[2], [] { return olRgbFields::channelName(2); });

    connect(m_swatch, &QPushButton::clicked, this, &QOLColorManipulator::openDialog);
    connect(m_channels, &olRgbFields::edited, this, &QOLColorManipulator::announce);
    setColor({0.0f, 0.0f, 0.0f});
}

void QOLColorManipulator::setColor(const osg::Color3f &color)
{
    const bool changed = !olRgbFields::same(color, m_channels->committedColor());
    m_channels->setColor(color);
    m_swatch->setColor(olRgbFields::onScreen(color));
    if (changed)
        announce();
}

osg::Color3f QOLColorManipulator::getColor() const { return m_channels->color(); }

void QOLColorManipulator::openDialog()
{
    if (!m_dialog) {
        m_dialog = new QOLColorDialog(this);
        olInnerParts::mark(m_dialog);
        connect(m_dialog, &QDialog::accepted, this, [this] { setColor(m_dialog->getColor()); });
    }
    m_dialog->setColor(getColor());
    m_dialog->open();
}

void QOLColorManipulator::announce()
{
    const osg::Color3f color = m_channels->committedColor();
    m_swatch->setColor(olRgbFields::onScreen(color));
    Q_EMIT colorChanged(color.red(), color.green(), color.blue());
}
