#pragma once

#include "Exchange/olImportJob.h"

/// What an import will go by, in a few lines of rich text for the person who is asked.
[[nodiscard]] QString olImportSummary(const olImportJob &job);
