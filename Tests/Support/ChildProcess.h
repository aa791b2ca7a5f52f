#pragma once

#include <functional>
#include <string>

/// Runs the work in a process of its own, for faults that this one could not take back. Returns what the work returns:
/// nothing when all went well. A process that dies says so.
std::string inChildProcess(const std::function<std::string()> &work);
