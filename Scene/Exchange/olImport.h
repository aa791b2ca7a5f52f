#pragma once

#include "Exchange/olImportJob.h"
#include "Model/olScene.h"

#include <QStringList>

class Message_ProgressRange;

/// What an import gave: a document, or one message that names the file and the reason.
struct olImportResult {
    olScene::Document document;
    QString error;
    bool isCancelled = false;

    /// What was read all the same but is not as it should be.
    QStringList remarks;

    [[nodiscard]] bool isGood() const { return error.isEmpty() && !isCancelled; }
};

/// Reads the file as the job says, triangulates it, and returns when that is done. May be called in any thread; waits
/// for another thread that is at a STEP or IGES file. Throws nothing.
[[nodiscard]] olImportResult olImport(const olImportJob &job, const Message_ProgressRange &progress);
[[nodiscard]] olImportResult olImport(const olImportJob &job);
