#pragma once

#include <QString>
#include <QStringList>

/// What a message says of a misspelt name, and asks `did you mean "NAME"?` with the nearest of the names where one is
/// near.
[[nodiscard]] QString olDidYouMean(const QString &fault, const QString &written, const QStringList &names);
