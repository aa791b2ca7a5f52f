#pragma once

#include "Model/olScene.h"

#include <QStringList>

/// Writes the surfaces and curves of the document as IGES. The format's assemblies are not for us and it knows no
/// opacity: each instance becomes a body of its own at its place, with its name and colours. False where the file
/// cannot be written; the remarks tell of lost opacity.
[[nodiscard]] bool olWriteIges(const olScene::Document &document, const QString &file, QStringList &remarks);
