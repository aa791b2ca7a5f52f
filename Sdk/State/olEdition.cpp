#include "State/olEdition.h"

#include <QStringList>

std::optional<olEdition> olEditionNamed(const QString &name)
{
    static const QStringList names{QStringLiteral("essentials"), QStringLiteral("design"),
                                   QStringLiteral("professional"), QStringLiteral("enterprise")};
    const int index = names.indexOf(name.toLower());
    return index < 0 ? std::nullopt : std::optional<olEdition>(static_cast<olEdition>(index));
}
