#include "Dialog/olSettingMarks.h"

#include "Editing/olPlainText.h"
#include "Widgets/olBlended.h"

#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace
{

constexpr int marginWidth = 7;
constexpr qreal barWidth = 3.0;
constexpr int tintMargin = 2;
constexpr QSizeF padlock(6.0, 10.0);
constexpr int dotRadius = 3;

/// Whether anything of it is to be seen: a tab behind, a folded frame and a hidden control show nothing.
bool isInSight(const QWidget &widget) { return widget.isVisible() && !widget.visibleRegion().isEmpty(); }

} // namespace

olSettingMarks::olSettingMarks(QWidget &page) : QWidget(&page)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    setObjectName(QStringLiteral("settingMarks"));
    page.installEventFilter(this);
    setGeometry(page.rect());
    raise();
    show();
}

olSettingMarks::~olSettingMarks()
{
    m_marks.clear();
    describe();
}

void olSettingMarks::setMarks(std::vector<Mark> marks)
{
    m_marks = std::move(marks);
    describe();
    for (const Mark &mark : m_marks)
        watch(mark.control);
    update();
}

void olSettingMarks::setRemarks(std::vector<Remark> remarks)
{
    m_remarks = std::move(remarks);
    for (const Remark &remark : m_remarks)
        watch(remark.control);
    update();
}

void olSettingMarks::setHits(std::vector<olFoundControl> controls)
{
    m_hits = std::move(controls);
    for (const olFoundControl &hit : m_hits)
        watch(hit);
    update();
}

QString olSettingMarks::toldState(olSettingState state)
{
    switch (state) {
    case olSettingState::Site:
        return tr("Set by the site.");
    case olSettingState::Yours:
        return tr("Set by you.");
    case olSettingState::Pending:
        return tr("Changed, not applied yet.");
    case olSettingState::Locked:
        return tr("Locked by the site.");
    case olSettingState::Default:
        break;
    }
    return {};
}

/// Who cannot see the mark is told, before what the control tells of itself anyway: its tooltip, while nothing else is
/// set.
void olSettingMarks::describe()
{
    for (const auto &[widget, own] : m_described) {
        if (widget)
            widget->setAccessibleDescription(own);
    }
    m_described.clear();
    for (const Mark &mark : m_marks) {
        QWidget *widget = mark.control.widget;
        const QString state = toldState(mark.state);
        if (!widget || state.isEmpty())
            continue;
        const QString own = widget->accessibleDescription();
        const QString told = own.isEmpty() ? olPlainText(widget->toolTip()) : own;
        m_described.emplace_back(widget, own);
        widget->setAccessibleDescription(told.isEmpty() ? state : state + QLatin1Char(' ') + told);
    }
}

/// A mark lies beside its control, where the control's own moving would not have it painted again.
void olSettingMarks::watch(const olFoundControl &control)
{
    for (QWidget *widget = control.widget; widget && widget != parentWidget(); widget = widget->parentWidget())
        widget->installEventFilter(this);
}

bool olSettingMarks::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
        if (watched == parent())
            resize(parentWidget()->size());
        [[fallthrough]];
    case QEvent::Move:
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::LayoutRequest:
    case QEvent::EnabledChange:
        update();
        return false;
    case QEvent::MouseButtonPress: {
        const QPoint global = static_cast<QMouseEvent *>(event)->globalPos();
        QWidget *marked = markedAt(mapFromGlobal(global));
        if (marked)
            emit clicked(marked, global);
        return marked;
    }
    case QEvent::ChildAdded:
        if (watched == parent())
            raise();
        return false;
    default:
        return false;
    }
}

/// The control with the labels before it.
QRect olSettingMarks::placeOf(const olFoundControl &control) const
{
    QRect place;
    const auto add = [&](const QWidget *widget) {
        if (widget && isInSight(*widget))
            place |= QRect(widget->mapTo(parentWidget(), QPoint()), widget->size());
    };
    add(control.widget);
    for (const auto &label : control.labels)
        add(label);
    return control.widget && isInSight(*control.widget) ? place : QRect();
}

void olSettingMarks::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (const olFoundControl &control : m_hits) {
        paintHit(painter, control);
        paintTabs(painter, control);
    }
    for (const Mark &mark : m_marks)
        paintMark(painter, mark);
    for (const Remark &remark : m_remarks)
        paintRemark(painter, remark);
}

/// Behind the control where there is room for the words, else only a sign at its end.
void olSettingMarks::paintRemark(QPainter &painter, const Remark &remark) const
{
    const QWidget *widget = remark.control.widget;
    if (!widget || remark.brief.isEmpty() || !isInSight(*widget))
        return;
    QRect place(widget->mapTo(parentWidget(), QPoint()), widget->size());
    // A box to be ticked may be wider than its text.
    if (widget->inherits("QCheckBox"))
        place = QStyle::visualRect(
            layoutDirection(), place,
            {place.topLeft(), QSize(std::min(place.width(), widget->sizeHint().width()), place.height())});
    const QWidget *around = widget->parentWidget();
    QRect room(around->mapTo(parentWidget(), QPoint()), around->size());
    // A unit may stand there, or the next column.
    for (const QObject *child : around->children()) {
        const auto *neighbour = qobject_cast<const QWidget *>(child);
        if (!neighbour || !neighbour->isVisible())
            continue;
        const QRect beside(neighbour->mapTo(parentWidget(), QPoint()), neighbour->size());
        const bool isBehind = isRightToLeft() ? beside.right() < place.left() : beside.left() > place.right();
        if (!isBehind || beside.top() >= place.bottom() || beside.bottom() <= place.top())
            continue;
        if (qobject_cast<const QLabel *>(neighbour))
            place |= beside;
        else if (isRightToLeft())
            room.setLeft(std::max(room.left(), beside.right() + marginWidth));
        else
            room.setRight(std::min(room.right(), beside.left() - marginWidth));
    }
    constexpr int gap = 10;
    const int free = isRightToLeft() ? place.left() - room.left() : room.right() - place.right();
    const QColor ink = palette().color(QPalette::Active, QPalette::WindowText);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(olBlended(palette().color(QPalette::Window), ink, 0.7));
    if (free >= fontMetrics().horizontalAdvance(remark.brief) + 2 * gap) {
        const QRect text = isRightToLeft() ? QRect(room.left(), place.top(), free - gap, place.height())
                                           : QRect(place.right() + gap, place.top(), free - gap, place.height());
        painter.drawText(text, int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter),
                         remark.brief);
    } else {
        const qreal x = isRightToLeft() ? place.left() - 4.5 : place.right() + 5.5;
        painter.drawEllipse(QPointF(x, place.center().y()), 2.5, 2.5);
    }
}

void olSettingMarks::paintHit(QPainter &painter, const olFoundControl &control) const
{
    const QRect place = placeOf(control);
    if (place.isEmpty())
        return;
    // The page is painted beneath, so the tint must let its texts through.
    QColor tint = palette().color(QPalette::Highlight);
    tint.setAlpha(130);
    painter.setPen(tint);
    tint.setAlpha(40);
    painter.setBrush(tint);
    painter.drawRoundedRect(
        QRectF(place.adjusted(-tintMargin, -tintMargin, tintMargin, tintMargin)).adjusted(0.5, 0.5, -0.5, -0.5), 3.0,
        3.0);
    painter.setPen(Qt::NoPen);
}

void olSettingMarks::paintTabs(QPainter &painter, const olFoundControl &control) const
{
    painter.setBrush(palette().color(QPalette::Highlight));
    for (const QWidget *widget = control.widget; widget && widget != parentWidget(); widget = widget->parentWidget()) {
        const QWidget *stack = widget->parentWidget();
        const auto *tabs = stack ? qobject_cast<const QTabWidget *>(stack->parentWidget()) : nullptr;
        if (!tabs || !isInSight(*tabs->tabBar()))
            continue;
        const QRect tab = tabs->tabBar()->tabRect(tabs->indexOf(const_cast<QWidget *>(widget)));
        const QPoint corner = tabs->tabBar()->mapTo(parentWidget(), tab.topRight());
        painter.drawEllipse(QPointF(corner) + QPointF(-2.0 * dotRadius, 2.5 * dotRadius), dotRadius, dotRadius);
    }
}

/// Beside the control, where reading begins.
QRect olSettingMarks::marginOf(const olFoundControl &control) const
{
    const QRect place = placeOf(control);
    if (place.isEmpty())
        return {};
    const int left = isRightToLeft() ? std::min(place.right() + 2, width() - marginWidth)
                                     : std::max(0, place.left() - marginWidth - 1);
    return {left, place.top(), marginWidth, place.height()};
}

QWidget *olSettingMarks::markedAt(const QPoint &place) const
{
    constexpr int near = 3;
    const auto at = std::find_if(m_marks.begin(), m_marks.end(), [&](const Mark &mark) {
        const QRect margin = marginOf(mark.control);
        return !margin.isEmpty() && margin.adjusted(-near, 0, near, 0).contains(place);
    });
    return at == m_marks.end() ? nullptr : at->control.widget.data();
}

/// A faint dot for the default, a bar for a person's own value and one in pieces while it is pending, a ring for the
/// site's, a padlock where that is locked.
void olSettingMarks::paintMark(QPainter &painter, const Mark &mark) const
{
    const QRectF margin = marginOf(mark.control);
    if (margin.isEmpty())
        return;
    // Of something high the first line.
    const QPointF middle(margin.center().x(),
                         margin.top() + std::min(margin.height(), 2.0 * fontMetrics().height()) / 2.0);
    const QRectF bar(middle.x() - barWidth / 2.0, margin.top(), barWidth, margin.height());
    const QColor accent = palette().color(QPalette::Active, QPalette::Highlight);
    const QColor ink = palette().color(QPalette::Active, QPalette::WindowText);
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    switch (mark.state) {
    case olSettingState::Default:
        painter.setBrush(olBlended(palette().color(QPalette::Window), ink, 0.35));
        painter.drawEllipse(middle, 1.0, 1.0);
        break;
    case olSettingState::Site:
        painter.setPen(QPen(ink, 1.2));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(middle, barWidth - 0.5, barWidth - 0.5);
        break;
    case olSettingState::Yours:
        painter.drawRoundedRect(bar, barWidth / 2.0, barWidth / 2.0);
        break;
    case olSettingState::Pending:
        for (qreal top = bar.top(); top < bar.bottom(); top += 2.0 * barWidth)
            painter.drawEllipse(QRectF(bar.left(), top, barWidth, std::min(barWidth, bar.bottom() - top)));
        break;
    case olSettingState::Locked: {
        // Off the label behind it.
        const QPointF center = middle + QPointF(isRightToLeft() ? 1.5 : -1.5, 0.0);
        paintPadlock(painter, QRectF(center - QPointF(padlock.width(), padlock.height()) / 2.0, padlock));
        break;
    }
    }
}

void olSettingMarks::paintPadlock(QPainter &painter, const QRectF &place) const
{
    const QColor ink = palette().color(QPalette::Active, QPalette::WindowText);
    const qreal body = place.height() * 0.55;
    painter.setBrush(ink);
    painter.drawRect(QRectF(place.left(), place.bottom() - body, place.width(), body));
    painter.setPen(QPen(ink, 1.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(place.adjusted(1.2, 0.5, -1.2, -body / 2.0), 2.0, 2.0);
}
