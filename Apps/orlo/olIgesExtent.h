#pragma once

#include <optional>

class QFile;

/// From corner to corner in millimetres, by the edges of an IGES file's faces, or by its surfaces and curves where they
/// stand alone. Nothing where these are not told plainly: by entities of other kinds, by copies or in a unit of its
/// own.
[[nodiscard]] std::optional<double> olIgesExtent(QFile &file);
