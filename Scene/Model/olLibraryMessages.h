#pragma once

#include <QString>

class TDF_Label;

/// The library talks to the standard output, which belongs to the program; from the call on it is silent. To be called
/// in the GUI thread.
void olSilenceLibrary();

/// The name of what a document's label holds; empty where it has none.
[[nodiscard]] QString olNameOf(const TDF_Label &label);

/// The same for messages, which say where there is none.
[[nodiscard]] QString olShownNameOf(const TDF_Label &label);
