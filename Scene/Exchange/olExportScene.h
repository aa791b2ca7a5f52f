#pragma once

#include "Model/olScene.h"
#include "State/olResult.h"

#include <QString>
#include <QStringList>

/// Writes the document in the format of the file's suffix; STL as text or binary, as the host's state says. A file that
/// was there before is only replaced by a whole one. Gives what the format could not take, or one message that names
/// the file and the reason. Throws nothing.
olResult<QStringList> olExportScene(const olScene::Document &document, const QString &file);
