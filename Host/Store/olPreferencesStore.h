#pragma once

#include "State/olHome.h"
#include "Store/olStoreRows.h"
#include "olHostExport.h"

#include <QString>
#include <QStringList>
#include <boost/any.hpp>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class olStoreError;
class olStoreFile;

/// How opening a store went. Both texts are empty when all is well.
struct olStoreOpening {
    QString error;  ///< nothing was read, and why: one sentence that names the file
    QString notice; ///< values were read, but not those of the file; to be told to the person, once
};

/// Where the values of settings are kept between runs: one database file, written whole or not at all, that finds out
/// when it is damaged, a copy beside it to go back to, and a history of all saves. Several programs may use it at once.
class ORLO_HOST_EXPORT olPreferencesStore
{
public:
    using Key = std::pair<olHome, std::string>;
    using Values = std::map<Key, boost::any>;

    /// The user's own store, in the configuration folder.
    [[nodiscard]] static QString userFile();

    /// Nothing is opened or created before it is needed. Of a link the target is the store.
    explicit olPreferencesStore(const QString &file);
    ~olPreferencesStore();
    olPreferencesStore(const olPreferencesStore &) = delete;
    olPreferencesStore &operator=(const olPreferencesStore &) = delete;

    [[nodiscard]] const QString &file() const { return m_file; }

    /// For a run that will save: reads everything into `values`. A damaged file is set aside under a dated name and the
    /// last good copy takes its place; a sound one becomes the last good copy. A file that does not exist yet holds
    /// nothing. Rows whose value cannot be understood stay in the file and are not among the values.
    [[nodiscard]] olStoreOpening open(Values &values);

    /// The same values without changing anything on the disk, whatever is found there.
    [[nodiscard]] olStoreOpening lookAt(Values &values);

    /// Only what the file itself holds, and its history where that is wanted: damage is an error. Returns an empty
    /// text, else one sentence that names the file and the reason.
    [[nodiscard]] QString load(Values &values, olStoreRows::History *history = nullptr);

    /// Whether the file may hold something else than when it was last read here. Cheap, to be asked all the time.
    [[nodiscard]] bool mayHaveChanged() const;

    /// Makes the store hold `changed` and no longer hold `removed`; what neither names stays as it is. One transaction:
    /// on failure the file keeps what it held. Returns as load() does. With nothing to do the file is not touched.
    [[nodiscard]] QString save(const Values &changed, const std::vector<Key> &removed);
    [[nodiscard]] QString save(const olStoreRows::Changes &changes);

    /// All saves that are remembered, and the rows after them; returns as load() does.
    [[nodiscard]] QString readHistory(olStoreRows::History &history, olStoreRows::Rows &rows) const;

    /// Whether the last save() failed because the file is damaged or gone, which open() mends.
    [[nodiscard]] bool isBroken() const { return m_isBroken; }

    /// One sentence for each thing that is wrong with the file or its copy. Changes nothing.
    [[nodiscard]] QStringList check() const;

    /// A setting's place among the rows, and back; nothing for a home that is not known.
    [[nodiscard]] static olStoreRows::Key rowKey(const Key &key);
    [[nodiscard]] static std::optional<Key> keyOf(const olStoreRows::Key &key);

    /// Empty for a value that cannot be understood.
    [[nodiscard]] static boost::any valueOf(const olStoreRows::Row &row);

private:
    [[nodiscard]] olStoreFile store() const;
    [[nodiscard]] olStoreFile copy() const;
    [[nodiscard]] QString cannotRead(const olStoreError &error) const;
    [[nodiscard]] QString wayOut(const olStoreError &error) const;
    void read(Values &values, olStoreRows::History *history = nullptr);
    void take(const olStoreRows::Rows &rows, Values &values);
    [[nodiscard]] bool readCopy(Values &values, QString &remark);
    void keepCopy() const;
    [[nodiscard]] olStoreOpening repair(const QString &reason, Values &values);

    struct Stamp;

    QString m_file;
    std::unique_ptr<Stamp> m_stamp;
    bool m_hadRows = false;
    bool m_isBroken = false;
};
