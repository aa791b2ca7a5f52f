#pragma once

#include "Exchange/olImportJob.h"
#include "Model/olScene.h"
#include "State/olResult.h"

#include <QStringList>

#include <functional>

/// What an import gave.
struct olImportResult {
    /// Or one message that names the file and the reason; none where it was cancelled.
    olResult<olScene::Document> document = olFailure{};
    bool isCancelled = false;

    /// What was read all the same but is not as it should be.
    QStringList remarks;

    /// For the host's log: guards of the reading that the system does not have.
    QStringList missingGuards;
};

/// How somebody goes along with an import. Both are called in the thread that imports, and may be empty.
struct olImportWatch {
    /// From 0 to 100.
    std::function<void(int percent)> progressed;
    std::function<bool()> isCancelled;
};

/// Reads the file as the job says in a process of its own, which ends with it: no file can take the caller down, use up
/// its memory, or make it wait for longer than the job's patience. May be called in any thread. Throws nothing.
[[nodiscard]] olImportResult olImport(const olImportJob &job, const olImportWatch &watch = {});
