#pragma once

#include <QString>

class TDF_Label;

/// The library talks to the standard output, which belongs to the program; from the first call on it is silent.
void olSilenceLibrary();

/// The name of what a document's label holds, for messages.
[[nodiscard]] QString olNameOf(const TDF_Label &label);
