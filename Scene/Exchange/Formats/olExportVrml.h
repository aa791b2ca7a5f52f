#pragma once

#include "Model/olScene.h"

#include <QString>

/// Writes the triangles of the document as VRML of version 2, with groups, names, colours, opacity, and each part once
/// however many instances it has. False where the file cannot be written.
[[nodiscard]] bool olWriteVrml(const olScene::Document &document, const QString &file);
