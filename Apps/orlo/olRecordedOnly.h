#pragma once

class QString;

/// Whether this value of the host's state changes nothing here: neither the view nor the importers, the devices or the
/// window can do what it asks for. False for names that are none.
[[nodiscard]] bool olIsRecordedOnly(const QString &name);
