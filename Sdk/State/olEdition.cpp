#include "State/olEdition.h"

#include <QStringList>

namespace
{
const QStringList &names()
{
    static const QStringList all{QStringLiteral("essentials"), QStringLiteral("design"), QStringLiteral("professional"),
                                 QStringLiteral("enterprise")};
    return all;
}
} // namespace

QString olEditionName(olEdition edition) { return names().at(int(edition)); }

std::optional<olEdition> olEditionNamed(const QString &name)
{
    const int index = names().indexOf(name.toLower());
    return index < 0 ? std::nullopt : std::optional<olEdition>(static_cast<olEdition>(index));
}
