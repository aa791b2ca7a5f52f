#pragma once

#include "Model/olScene.h"

#include <QString>
#include <QStringList>

/// Writes the document as VRML 2; false where the file cannot take it.
[[nodiscard]] bool olWriteVrml(const olScene::Document &document, const QString &file, QStringList &remarks);
