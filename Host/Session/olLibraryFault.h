#pragma once

class QString;

/// Why the dynamic loader must not be given the file; empty where nothing speaks against it. The loader maps what the
/// file's own tables announce: in a file that was cut, touching what is missing ends the program.
[[nodiscard]] QString olLibraryFault(const QString &name);
