#include "olNearest.h"

#include "olToolError.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace
{

/// How many letters must be put in, taken out or exchanged.
int distance(const QString &left, const QString &right)
{
    std::vector<int> row(std::size_t(right.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < left.size(); ++i) {
        int diagonal = row[0];
        row[0] = i + 1;
        for (int j = 0; j < right.size(); ++j) {
            int &cell = row[std::size_t(j) + 1];
            const int exchanged = diagonal + (left.at(i).toCaseFolded() == right.at(j).toCaseFolded() ? 0 : 1);
            diagonal = cell;
            cell = std::min({exchanged, cell + 1, row[std::size_t(j)] + 1});
        }
    }
    return row.back();
}

} // namespace

QString olDidYouMean(const QString &fault, const QString &written, const QStringList &names)
{
    const auto nearest = std::min_element(names.begin(), names.end(), [&](const QString &one, const QString &other) {
        return distance(written, one) < distance(written, other);
    });
    const int farthest = std::max(2, written.size() / 3);
    if (nearest == names.end() || distance(written, *nearest) > farthest)
        return fault;
    return olToolError::tr("%1; did you mean \"%2\"?").arg(fault, *nearest);
}
