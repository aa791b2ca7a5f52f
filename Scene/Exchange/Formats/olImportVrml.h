#pragma once

#include "Model/olScene.h"

#include <QString>

/// Reads a VRML file of version 2 with its groups, names and colours into the document. Returns why it could not be
/// understood to its end, in half a sentence; empty on success.
[[nodiscard]] QString olReadVrml(const QString &file, const olScene::Document &document);
