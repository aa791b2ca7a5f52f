#include "Session/olNumberText.h"

#include "State/olValue.h"

#include <QCoreApplication>

#include <cmath>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olNumberText)
};

QString bound(double value) { return QString::fromStdString(olNumberText(value)); }

} // namespace

std::string olNumberText(double value)
{
    const auto narrow = float(value);
    return double(narrow) == value ? olValue::number(narrow) : olValue::number(value);
}

QString olNumbersBetween(double lowest, double highest)
{
    if (std::isinf(lowest) && std::isinf(highest))
        return Words::tr("a number");
    if (std::isinf(highest))
        return Words::tr("a number from %1").arg(bound(lowest));
    if (std::isinf(lowest))
        return Words::tr("a number up to %1").arg(bound(highest));
    return Words::tr("a number from %1 to %2").arg(bound(lowest), bound(highest));
}

QString olWholeNumbersBetween(int lowest, int highest)
{
    return Words::tr("a whole number from %1 to %2").arg(lowest).arg(highest);
}
