#pragma once

#include "Exchange/olModelFormat.h"

/// Why a file cannot be a whole model of the format, in half a sentence; empty where nothing speaks against it. The
/// readers themselves take what they get of a cut file and say nothing. Remarks tell of what is missing beside it.
[[nodiscard]] QString olImportFileCheck(const QString &name, const olModelFormat &format, QStringList &remarks);
