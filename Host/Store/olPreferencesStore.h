#pragma once

#include "State/olHome.h"
#include "olHostExport.h"

#include <QString>
#include <QStringList>
#include <boost/any.hpp>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class olStoreFile;
class olStoreWriter;
struct olStoreFault;
struct olStoreRows;

/// How opening a store went. Both texts are empty when all is well.
struct olStoreOpening {
    QString error;  ///< nothing was read, and why: one sentence that names the file
    QString notice; ///< values were read, but not those of the file; to be told to the person, once
};

/// Where the values of settings are kept between runs: one database file, written whole or not at all, that finds out
/// when it is damaged, and a copy beside it to go back to.
class ORLO_HOST_EXPORT olPreferencesStore
{
public:
    using Key = std::pair<olHome, std::string>;
    using Values = std::map<Key, boost::any>;

    /// The user's own store, in the configuration folder.
    [[nodiscard]] static QString userFile();

    /// Nothing is opened or created before it is needed.
    explicit olPreferencesStore(QString file);
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

    /// Only what the file itself holds: damage is an error. Returns an empty text, else one sentence that names the
    /// file and the reason.
    [[nodiscard]] QString load(Values &values);

    /// Makes the store hold `changed` and no longer hold `removed`; what neither names stays as it is. One transaction:
    /// on failure the file keeps what it held. Returns as load() does. With nothing to do the file is not touched. It
    /// stays open for the next save, which nobody has to wait for.
    [[nodiscard]] QString save(const Values &changed, const std::vector<Key> &removed);

    /// After the last save of a run: works the log of its saves into the file, which is then whole without it. What
    /// fails here is made up for when the store is opened next.
    void close();

    /// Whether the last save() failed because the file is damaged or gone, which open() mends.
    [[nodiscard]] bool isBroken() const { return m_isBroken; }

    /// One sentence for each thing that is wrong with the file or its copy. Changes nothing.
    [[nodiscard]] QStringList check() const;

private:
    [[nodiscard]] olStoreFile store() const;
    [[nodiscard]] olStoreFile copy() const;
    [[nodiscard]] bool wasStore() const;
    [[nodiscard]] QString cannotRead(const olStoreFault &fault) const;
    [[nodiscard]] QString wayOut(const olStoreFault &fault) const;
    [[nodiscard]] QString lostSaves() const;
    [[nodiscard]] olStoreRows copiedRows(QString &remark) const;
    void makeWay() const;
    void keepCopy(const olStoreRows &rows) const;
    [[nodiscard]] olStoreOpening repair(const QString &reason, Values &values);
    void hand(const olStoreRows &rows, Values &values);

    QString m_file;
    std::unique_ptr<olStoreWriter> m_writer;
    bool m_hadRows = false;
    bool m_isBroken = false;
    bool m_hasLog = false;
};
