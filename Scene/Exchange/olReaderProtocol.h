#pragma once

#include "Exchange/olImport.h"

#include <QByteArray>

#include <cstddef>

/// What the viewer and its reading process say to each other. Both come from one package.
namespace olReaderProtocol
{

/// The open files of the reading process: the job comes in, progress goes out line by line, and the result is written.
constexpr int jobFile = 0;
constexpr int progressFile = 3;
constexpr int resultFile = 4;

/// The name of the program, which stands beside the viewer.
constexpr char program[] = "orlo-reader";

[[nodiscard]] QByteArray packed(const olImportJob &job);
[[nodiscard]] bool unpack(const QByteArray &bytes, olImportJob &job);

/// Writes the result to the open file. False where the file cannot take it.
[[nodiscard]] bool write(const olImportResult &result, int file);

/// False where the bytes are no whole result.
[[nodiscard]] bool read(const unsigned char *bytes, std::size_t count, olImportResult &result);

} // namespace olReaderProtocol
