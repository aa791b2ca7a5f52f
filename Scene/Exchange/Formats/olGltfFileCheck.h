#pragma once

#include <QString>

class QFile;

/// Why the open file cannot be a whole glTF model, in half a sentence; empty where nothing speaks against it. The
/// reader believes every count in the file and makes room for it before it looks whether there is as much.
[[nodiscard]] QString olGltfFault(QFile &file);
