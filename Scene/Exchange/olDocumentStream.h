#pragma once

#include "Model/olScene.h"

#include <cstddef>

/// A document from one process to another: triangles as they lie in memory, the rest in a form of the library's own.
namespace olDocumentStream
{

/// Appends the document to the open file. Throws std::system_error where the file cannot take it.
void write(const olScene::Document &document, int file);

/// Null where the bytes are no document, or one whose triangles refer to points that are not there: whoever wrote them
/// is not trusted.
[[nodiscard]] olScene::Document read(const unsigned char *bytes, std::size_t count);

} // namespace olDocumentStream
