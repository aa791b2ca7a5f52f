#include "Dialog/olMessageLine.h"

#include "Widgets/olBlended.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

olMessageLine::olMessageLine()
    : m_icon(new QLabel), m_text(new QLabel), m_action(new QPushButton), m_close(new QToolButton)
{
    setAutoFillBackground(true);
    setFrameShape(StyledPanel);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_icon, 0, Qt::AlignTop);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_action, 0, Qt::AlignTop);
    layout->addWidget(m_close, 0, Qt::AlignTop);
    m_action->setObjectName(QStringLiteral("messageAction"));
    m_action->setAutoDefault(false);
    connect(m_action, &QPushButton::clicked, this, &olMessageLine::actionAsked);
    m_close->setObjectName(QStringLiteral("closeMessage"));
    m_close->setAutoRaise(true);
    m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    m_close->setAccessibleName(tr("Close the message"));
    connect(m_close, &QToolButton::clicked, this, [this] {
        clear();
        emit closed();
    });
    setVisible(false);
}

void olMessageLine::showError(const QString &text) { show(text, {}, true); }

void olMessageLine::showNote(const QString &text, const QString &action) { show(text, action, false); }

void olMessageLine::clear()
{
    m_text->clear();
    setVisible(false);
}

QString olMessageLine::text() const { return m_text->text(); }

void olMessageLine::show(const QString &text, const QString &action, bool isError)
{
    m_action->setText(action);
    m_action->setVisible(!action.isEmpty());
    const auto icon = isError ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxInformation;
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
    m_icon->setPixmap(style()->standardIcon(icon).pixmap(size, size));
    m_text->setText(text);

    m_isError = isError;
    shade();
    setVisible(true);

    QAccessibleEvent alert(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

/// The desktop's colours may become others while it is shown.
void olMessageLine::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && isVisible())
        shade();
}

void olMessageLine::shade()
{
    QPalette shaded;
    const QColor accent = m_isError ? QColor(Qt::red) : shaded.color(QPalette::Highlight);
    shaded.setColor(QPalette::Window, olBlended(shaded.color(QPalette::Window), accent, m_isError ? 0.15 : 0.1));
    if (shaded.color(QPalette::Window) != palette().color(QPalette::Window))
        setPalette(shaded);
}
