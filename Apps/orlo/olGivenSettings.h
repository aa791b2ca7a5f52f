#pragma once

#include <QString>
#include <QStringList>

/// Puts settings given as "KEY=VALUE" into the record, where they hold for this run. The modules must be there; the
/// host applies them when it starts. Returns what is wrong with the first one that cannot be, empty if all could.
[[nodiscard]] QString olSetGivenSettings(const QStringList &settings);
