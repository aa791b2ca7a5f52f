#include "olNearest.h"

#include "Editing/olSettingsSearch.h"
#include "olToolError.h"

#include <algorithm>

QString olDidYouMean(const QString &fault, const QString &written, const QStringList &names)
{
    const int farthest = std::max(2, written.size() / 3);
    const auto distance = [&](const QString &name) {
        return olTypingDistance(written.toCaseFolded(), name.toCaseFolded(), farthest);
    };
    const auto nearest = std::min_element(names.begin(), names.end(), [&](const QString &one, const QString &other) {
        return distance(one) < distance(other);
    });
    if (nearest == names.end() || distance(*nearest) > farthest)
        return fault;
    return olToolError::tr("%1; did you mean \"%2\"?").arg(fault, *nearest);
}
