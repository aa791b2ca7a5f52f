#include "Dialog/olSettingMarks.h"

#include "Editing/olPlainText.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace
{

constexpr int barWidth = 3;
constexpr int barGap = 3;
constexpr int tintMargin = 2;
constexpr QSize padlock(7, 10);
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

olSettingMarks::~olSettingMarks() { describe({}); }

void olSettingMarks::setChanged(std::vector<olFoundControl> controls)
{
    m_changed = std::move(controls);
    describe(m_changed);
    watch(m_changed);
    update();
}

void olSettingMarks::setPending(std::vector<olFoundControl> controls)
{
    m_pending = std::move(controls);
    watch(m_pending);
    update();
}

void olSettingMarks::setLocked(std::vector<olFoundControl> controls)
{
    m_locked = std::move(controls);
    watch(m_locked);
    update();
}

void olSettingMarks::setHits(std::vector<olFoundControl> controls)
{
    m_hits = std::move(controls);
    watch(m_hits);
    update();
}

/// Who cannot see the mark is told, before what the control tells of itself anyway: its tooltip, while nothing else is
/// set.
void olSettingMarks::describe(const std::vector<olFoundControl> &controls)
{
    for (auto described = m_described.begin(); described != m_described.end();
         described = m_described.erase(described)) {
        if (described->first)
            described->first->setAccessibleDescription(described->second);
    }
    for (const olFoundControl &control : controls) {
        if (!control.widget)
            continue;
        const QString own = control.widget->accessibleDescription();
        const QString told = own.isEmpty() ? olPlainText(control.widget->toolTip()) : own;
        m_described.emplace_back(control.widget, own);
        control.widget->setAccessibleDescription(told.isEmpty() ? tr("Differs from its default.")
                                                                : tr("Differs from its default. %1").arg(told));
    }
}

/// A mark lies beside its control, where the control's own moving would not have it painted again.
void olSettingMarks::watch(const std::vector<olFoundControl> &controls)
{
    for (const olFoundControl &control : controls) {
        for (QWidget *widget = control.widget; widget && widget != parentWidget(); widget = widget->parentWidget())
            widget->installEventFilter(this);
    }
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
    const auto isPending = [this](const olFoundControl &control) {
        return std::any_of(m_pending.begin(), m_pending.end(),
                           [&control](const olFoundControl &other) { return other.widget == control.widget; });
    };
    for (const olFoundControl &control : m_changed)
        paintBar(painter, control, isPending(control));
    // Whoever goes back to a default has that pending, too.
    for (const olFoundControl &control : m_pending)
        paintBar(painter, control, true);
    for (const olFoundControl &control : m_locked)
        paintPadlock(painter, control);
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

QRect olSettingMarks::barOf(const olFoundControl &control) const
{
    const QRect place = placeOf(control);
    return place.isEmpty()
               ? QRect()
               : QRect(std::max(0, place.left() - barGap - barWidth), place.top(), barWidth, place.height());
}

QRect olSettingMarks::padlockOf(const olFoundControl &control) const
{
    const QRect place = placeOf(control);
    return place.isEmpty() ? QRect()
                           : QRect(std::max(0, place.left() - padlock.width() - 1),
                                   place.center().y() - padlock.height() / 2, padlock.width(), padlock.height());
}

QWidget *olSettingMarks::markedAt(const QPoint &place) const
{
    constexpr int near = 3;
    const auto at = [&place](const QRect &mark) {
        return !mark.isEmpty() && mark.adjusted(-near, 0, near, 0).contains(place);
    };
    for (const auto *marked : {&m_changed, &m_pending}) {
        for (const olFoundControl &control : *marked) {
            if (at(barOf(control)))
                return control.widget;
        }
    }
    for (const olFoundControl &control : m_locked) {
        if (at(padlockOf(control)))
            return control.widget;
    }
    return nullptr;
}

void olSettingMarks::paintBar(QPainter &painter, const olFoundControl &control, bool isPending) const
{
    const QRectF bar = barOf(control);
    if (bar.isEmpty())
        return;
    painter.setBrush(palette().color(QPalette::Active, QPalette::Highlight));
    if (!isPending) {
        painter.drawRoundedRect(bar, barWidth / 2.0, barWidth / 2.0);
        return;
    }
    for (qreal top = bar.top(); top < bar.bottom(); top += 2.0 * barWidth)
        painter.drawEllipse(QRectF(bar.left(), top, barWidth, std::min<qreal>(barWidth, bar.bottom() - top)));
}

void olSettingMarks::paintPadlock(QPainter &painter, const olFoundControl &control) const
{
    const QRectF place = padlockOf(control);
    if (place.isEmpty())
        return;
    const QColor ink = palette().color(QPalette::Active, QPalette::WindowText);
    const qreal body = place.height() * 0.55;
    painter.setBrush(ink);
    painter.drawRect(QRectF(place.left(), place.bottom() - body, place.width(), body));
    painter.setPen(QPen(ink, 1.2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(place.adjusted(1.2, 0.5, -1.2, -body / 2.0), 2.0, 2.0);
    painter.setPen(Qt::NoPen);
}
