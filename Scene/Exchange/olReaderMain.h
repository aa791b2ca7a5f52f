#pragma once

/// The whole of the reading process: takes a job, reads its file behind all guards that the system has, and writes the
/// result. Does not return.
[[noreturn]] void olReaderMain();
