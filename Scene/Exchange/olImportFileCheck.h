#pragma once

#include "Exchange/olModelFormat.h"

/// Whether a file can be a whole model of the format, or why not in half a sentence. The readers themselves take what
/// they get of a cut file and say nothing. Remarks tell of what is missing beside it.
olResult<> olImportFileCheck(const QString &name, const olModelFormat &format, QStringList &remarks);
