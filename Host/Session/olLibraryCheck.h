#pragma once

#include "State/olResult.h"

#include <QString>

/// Whether the dynamic loader may be given the file, and why not. The loader maps what the file's own tables announce:
/// in a file that was cut, touching what is missing ends the program.
olResult<> olCheckLibrary(const QString &name);
