#pragma once

#include "Exchange/olImport.h"

class Message_ProgressRange;

/// Reads the file as the job says in this very process, which a damaged file may bring down, and triangulates it. The
/// error is half a sentence, to be put behind the file's name.
[[nodiscard]] olImportResult olReadModel(const olImportJob &job, const Message_ProgressRange &progress);
