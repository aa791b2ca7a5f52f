#pragma once

#include "Exchange/olImportJob.h"
#include "Exchange/olModelFormat.h"
#include "Model/olScene.h"

class Message_ProgressRange;

/// Reads a file of the format into an empty document, just as the file has it. Returns why it could not, in half a
/// sentence; empty on success. May throw what the library throws.
[[nodiscard]] QString olReadModel(const olImportJob &job, const olModelFormat &format,
                                  const olScene::Document &document, const Message_ProgressRange &progress);

/// The library reads STEP and IGES through tables that the whole process shares: whoever reads or writes these formats
/// holds this for as long.
class olExchangeLock
{
public:
    olExchangeLock();
    ~olExchangeLock();
    olExchangeLock(const olExchangeLock &) = delete;
    olExchangeLock &operator=(const olExchangeLock &) = delete;
};
