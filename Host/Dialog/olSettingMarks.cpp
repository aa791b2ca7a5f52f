#include "Dialog/olSettingMarks.h"

#include "Editing/olPlainText.h"

#include <QEvent>
#include <QPainter>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace
{

constexpr int barWidth = 3;
constexpr int barGap = 3;
constexpr int tintMargin = 2;
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
    for (const olFoundControl &control : m_changed)
        paintChanged(painter, control);
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

void olSettingMarks::paintChanged(QPainter &painter, const olFoundControl &control) const
{
    const QRect place = placeOf(control);
    if (place.isEmpty())
        return;
    painter.setBrush(palette().color(QPalette::Active, QPalette::Highlight));
    const qreal left = std::max(0, place.left() - barGap - barWidth);
    painter.drawRoundedRect(QRectF(left, place.top(), barWidth, place.height()), barWidth / 2.0, barWidth / 2.0);
}
