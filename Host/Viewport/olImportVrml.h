#pragma once

#include "Viewport/olScene.h"

#include <QString>

/// Reads a VRML file of version 2 with its groups, names and colours into the document; false where it cannot be
/// understood to its end.
[[nodiscard]] bool olReadVrml(const QString &file, const olScene::Document &document);
