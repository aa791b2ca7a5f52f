#include "FileIO/olTesselationListViewItem.h"

#include <cmath>

namespace
{

constexpr int toleranceColumn = 0;

QString shown(float tolerance) { return QString::number(double(tolerance), 'g', 6); }

} // namespace

olTesselationListViewItem::olTesselationListViewItem(float tolerance) : m_tolerance(tolerance)
{
    setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsEditable | Qt::ItemNeverHasChildren);
    showTolerance();
}

bool olTesselationListViewItem::takeText()
{
    // A text left as it was shows six digits of a number that may have more.
    if (text(toleranceColumn) == shown(m_tolerance))
        return true;
    const float tolerance = text(toleranceColumn).toFloat();
    if (!(tolerance > 0.0f) || !std::isfinite(tolerance))
        return false;
    m_tolerance = tolerance;
    showTolerance();
    return true;
}

void olTesselationListViewItem::showTolerance() { setText(toleranceColumn, shown(m_tolerance)); }

bool olTesselationListViewItem::operator<(const QTreeWidgetItem &other) const
{
    return m_tolerance < static_cast<const olTesselationListViewItem &>(other).m_tolerance;
}
