#pragma once

class QString;

/// The log of a database that was not closed in order. The database passes over whatever does not match its checksum,
/// and everything behind it, without a word: it cannot tell damage from a save that was never finished.
namespace olWriteAheadLog
{

/// Whether the log holds a finished save that the database will not take, because it or what stands before it is
/// damaged. False without a log. To be asked while nobody writes it.
[[nodiscard]] bool isDamaged(const QString &log);

} // namespace olWriteAheadLog
