#pragma once

#include <QStringList>

/// Where files of strangers are read: a process that can read files and compute, and nothing else.
namespace olSandbox
{

/// Gives up, for the rest of the process's life: more memory than half of the machine's, the network, other programs
/// and processes, and writing to files that are not open already. Returns a sentence for each guard that the system
/// does not have.
[[nodiscard]] QStringList enter();

} // namespace olSandbox
