#pragma once

#include "Utilities/olExport.h"

#include <QString>
#include <boost/any.hpp>

#include <map>
#include <string>
#include <utility>
#include <vector>

/// Where the values of a module live while the host runs.
enum class olHome { Record, Service };

/// Where the values of settings are kept between runs: one database file, written whole or not at all.
class ORLO_SDK_EXPORT olPreferencesStore
{
public:
    using Key = std::pair<olHome, std::string>;
    using Values = std::map<Key, boost::any>;

    /// The user's own store, in the configuration folder.
    [[nodiscard]] static QString userFile();

    /// Nothing is opened or created before it is needed.
    explicit olPreferencesStore(QString file);

    [[nodiscard]] const QString &file() const { return m_file; }

    /// Reads everything into `values`; a file that does not exist yet holds nothing. Returns an empty text, else one
    /// sentence that names the file and the reason.
    [[nodiscard]] QString load(Values &values) const;

    /// Makes the store hold `changed` and no longer hold `removed`; what neither names stays as it is. One transaction:
    /// on failure the file keeps what it held. Returns as load() does. With nothing to do the file is not touched.
    [[nodiscard]] QString save(const Values &changed, const std::vector<Key> &removed) const;

private:
    QString m_file;
};
