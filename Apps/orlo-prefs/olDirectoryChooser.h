#pragma once

#include <QString>

#include <functional>

/// Stands where a person would choose a directory: given the caption and the start directory, the directory, or an
/// empty text for Cancel. Null cancels every chooser.
using olDirectoryChooser = std::function<QString(const QString &caption, const QString &startDirectory)>;

void olSetDirectoryChooser(olDirectoryChooser chooser);
