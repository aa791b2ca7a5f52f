#pragma once

#include "Model/olScene.h"

/// What a document has, in the bits of olModelFormat::Content.
[[nodiscard]] unsigned olDocumentContent(const olScene::Document &document);
