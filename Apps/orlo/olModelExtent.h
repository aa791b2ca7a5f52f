#pragma once

#include <QString>

#include <optional>

/// How large a model is, from corner to corner in millimetres, by a look at the points in its file before it is read:
/// about as large as that, as parts may lie elsewhere than their points say. Nothing for a file that does not tell.
[[nodiscard]] std::optional<double> olModelExtent(const QString &file);

/// What a tolerance is against a model of that extent, in words.
[[nodiscard]] QString olToleranceInWords(double tolerance, double extent);
