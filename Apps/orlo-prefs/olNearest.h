#pragma once

#include <QString>
#include <QStringList>

/// For messages about a misspelt name: `; did you mean "NAME"?` with the nearest of the names, or nothing where none
/// is near.
[[nodiscard]] QString olDidYouMean(const QString &written, const QStringList &names);
