#include "Widgets/QOLCollapsibleFrame.h"

#include "Widgets/olFoldHeader.h"

#include <QApplication>
#include <QFocusEvent>
#include <QHash>
#include <QStringList>

namespace
{

/// Which frames the user left folded, by their place.
QHash<QString, bool> &foldedPlaces()
{
    static QHash<QString, bool> places;
    return places;
}

/// Pages are classes of their own, while all that a form is made of comes from the toolkit or is a host widget.
bool isPage(const QWidget &widget)
{
    return widget.isWindow() || !QByteArray(widget.metaObject()->className()).startsWith('Q');
}

QString placeName(const QWidget &widget)
{
    const auto *frame = qobject_cast<const QOLCollapsibleFrame *>(&widget);
    return widget.objectName() + QLatin1Char(':') + (frame ? frame->caption() : QString());
}

} // namespace

QOLCollapsibleFrame::QOLCollapsibleFrame(QWidget *parent) : QFrame(parent), m_header(new olFoldHeader(this))
{
    connect(m_header, &olFoldHeader::clicked, this, [this] { setFolded(!m_folded); });
    connect(m_header, &olFoldHeader::foldAsked, this, &QOLCollapsibleFrame::setFolded);
    updateHeader();
}

void QOLCollapsibleFrame::setCaption(const QString &caption)
{
    m_caption = caption;
    updateHeader();
}

void QOLCollapsibleFrame::setFolded(bool folded)
{
    if (m_recalled)
        foldedPlaces().insert(place(), folded);
    if (m_folded == folded)
        return;
    if (folded && isContent(window()->focusWidget()))
        m_header->setFocus(Qt::OtherFocusReason);
    m_folded = folded;
    if (folded)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
    limitHeight();
    updateHeader();
    Q_EMIT toggled(folded);
}

QSize QOLCollapsibleFrame::sizeHint() const
{
    // QFrame's hint is its border, whatever the layout needs.
    return boundedHint(QWidget::sizeHint()); // NOLINT(bugprone-parent-virtual-call)
}

QSize QOLCollapsibleFrame::minimumSizeHint() const { return boundedHint(QWidget::minimumSizeHint()); }

bool QOLCollapsibleFrame::hasHeightForWidth() const { return !m_folded && QFrame::hasHeightForWidth(); }

int QOLCollapsibleFrame::heightForWidth(int width) const { return m_folded ? -1 : QFrame::heightForWidth(width); }

bool QOLCollapsibleFrame::eventFilter(QObject *watched, QEvent *event)
{
    // Installed while folded only. Tab passes on; whoever else gives the focus to the content wants it seen.
    if (event->type() != QEvent::FocusIn || !watched->isWidgetType() || !isContent(static_cast<QWidget *>(watched)))
        return false;
    const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
    if (reason != Qt::TabFocusReason && reason != Qt::BacktabFocusReason) {
        setFolded(false);
        return false;
    }
    focusNextPrevChild(reason == Qt::TabFocusReason);
    return true;
}

bool QOLCollapsibleFrame::event(QEvent *event)
{
    const bool done = QFrame::event(event);
    // At both of these QFrame sets the margins back to its border, and with them the header's place.
    if (event->type() == QEvent::Polish || event->type() == QEvent::ParentChange)
        updateHeader();
    if (event->type() == QEvent::Polish)
        recallState();
    return done;
}

void QOLCollapsibleFrame::changeEvent(QEvent *event)
{
    QFrame::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::LanguageChange:
        updateHeader();
        break;
    default:
        break;
    }
}

void QOLCollapsibleFrame::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    placeHeader();
}

void QOLCollapsibleFrame::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    putHeaderFirstInTabOrder();
}

bool QOLCollapsibleFrame::isContent(const QWidget *widget) const
{
    return widget && widget != m_header && isAncestorOf(widget);
}

QString QOLCollapsibleFrame::place() const
{
    QStringList names{placeName(*this)};
    const QWidget *widget = this;
    while (!isPage(*widget) && widget->parentWidget()) {
        widget = widget->parentWidget();
        names.prepend(placeName(*widget));
    }
    names.prepend(QString::fromLatin1(widget->metaObject()->className()));
    return names.join(QLatin1Char('/'));
}

QSize QOLCollapsibleFrame::boundedHint(QSize content) const
{
    const QSize header = m_header->sizeHint();
    const QSize hint = content.expandedTo(header);
    // Folding keeps the width, so that the page does not jump sideways.
    return m_folded ? QSize(hint.width(), header.height()) : hint;
}

void QOLCollapsibleFrame::recallState()
{
    setFolded(foldedPlaces().value(place(), m_folded));
    m_recalled = true;
}

void QOLCollapsibleFrame::limitHeight()
{
    if (m_folded) {
        m_unfoldedMinimum = minimumHeight();
        m_unfoldedMaximum = maximumHeight();
        setMinimumHeight(0);
        setMaximumHeight(m_header->sizeHint().height());
    } else {
        setMaximumHeight(m_unfoldedMaximum);
        setMinimumHeight(m_unfoldedMinimum);
    }
    updateGeometry();
}

void QOLCollapsibleFrame::placeHeader()
{
    // The form's layout fills what the margins leave, so the header needs no place in it.
    const int border = frameWidth();
    const int height = m_header->sizeHint().height();
    setContentsMargins(border, height + border, border, border);
    m_header->setGeometry(0, 0, width(), height);
    if (m_folded)
        setMaximumHeight(height);
}

void QOLCollapsibleFrame::updateHeader()
{
    m_header->showState(m_caption, m_folded);
    placeHeader();
    updateGeometry();
}

void QOLCollapsibleFrame::putHeaderFirstInTabOrder()
{
    // Forms store the order of their inputs only, which leaves the headers behind them all.
    QWidget *before = window();
    for (QWidget *next = before->nextInFocusChain(); next != window(); next = next->nextInFocusChain()) {
        if (!isContent(next) && next != m_header)
            before = next;
        else if (next != m_header && (next->focusPolicy() & Qt::TabFocus) != 0) {
            setTabOrder(before, m_header);
            return;
        }
    }
}
