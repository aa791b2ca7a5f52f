#include "Widgets/QOLColorDialog.h"

#include "Widgets/olInnerParts.h"
#include "Widgets/olRgbFields.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

QOLColorDialog::QOLColorDialog(QWidget *parent)
    : QDialog(parent), m_picker(new QColorDialog(this)), m_channels(new olRgbFields(this))
{
    setWindowTitle(tr("Choose Color"));
    olInnerParts::mark(m_picker);
    m_picker->setWindowFlags(Qt::Widget);
    m_picker->setOptions(QColorDialog::NoButtons | QColorDialog::DontUseNativeDialog);
    m_picker->installEventFilter(this);
    m_picker->layout()->setContentsMargins(0, 0, 0, 0);
    // Else Enter would start picking from the screen.
    for (QPushButton *button : m_picker->findChildren<QPushButton *>())
        button->setAutoDefault(false);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    auto *layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(m_picker);
    layout->addWidget(m_channels);
    layout->addWidget(buttons);

    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_picker, &QColorDialog::currentColorChanged, this, &QOLColorDialog::takeFromPicker);
    connect(m_channels, &olRgbFields::edited, this, &QOLColorDialog::showInPicker);
    setColor({0.0f, 0.0f, 0.0f});
}

void QOLColorDialog::setColor(const osg::Color3f &color)
{
    m_channels->setColor(color);
    showInPicker();
}

osg::Color3f QOLColorDialog::getColor() const { return m_channels->color(); }

bool QOLColorDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_picker || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    // The picker is a dialog itself and would hide itself on Escape and swallow Enter; both are this dialog's.
    const int key = static_cast<QKeyEvent *>(event)->key();
    const bool ours = key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter;
    if (ours)
        event->ignore();
    return ours;
}

void QOLColorDialog::showInPicker()
{
    const QSignalBlocker quiet(m_picker);
    m_picker->setCurrentColor(olRgbFields::onScreen(m_channels->color()));
}

void QOLColorDialog::takeFromPicker(const QColor &picked)
{
    constexpr float full = 255.0f;
    m_channels->setColor({float(picked.red()) / full, float(picked.green()) / full, float(picked.blue()) / full});
}
