#pragma once

#include <QSize>
#include <QString>

#include <optional>

class olScene;
struct olImportChoice;

/// What the viewer does without its window: a picture of a model, and writing the scene. Each says on the standard
/// error stream what went wrong and returns the exit status of the program: 2 where a model cannot be read.
namespace olBatch
{

[[nodiscard]] int render(const QString &model, const QString &picture, const QSize &size, bool hasEdges,
                         const olImportChoice &choice);

/// Reads a model and writes it in the format of the suffix.
[[nodiscard]] int convert(const QString &model, const QString &file, const olImportChoice &choice);

/// Writes the scene in the format of the suffix.
[[nodiscard]] int save(const olScene &scene, const QString &file);

/// "WIDTHxHEIGHT" in pixels; nothing where it is no such size.
[[nodiscard]] std::optional<QSize> sizeFrom(const QString &text);

} // namespace olBatch
