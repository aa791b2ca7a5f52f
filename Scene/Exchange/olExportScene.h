#pragma once

#include "Model/olScene.h"

#include <QString>
#include <QStringList>

/// What an export gave: an empty error, or one message that names the file and the reason.
struct olExportResult {
    QString error;

    /// What the format could not take.
    QStringList remarks;
};

/// Writes the document in the format of the file's suffix; STL as text or binary, as the host's state says. A file that
/// was there before is only replaced by a whole one. Throws nothing.
[[nodiscard]] olExportResult olExportScene(const olScene::Document &document, const QString &file);
