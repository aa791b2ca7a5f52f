#pragma once

#include "State/olResult.h"
#include "Store/olStoreRows.h"
#include "olHostExport.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <vector>

class olStoreError;

/// What a run does to the store that it loads: a run of its own keeps it in order, one that only looks leaves the disk
/// as it is.
enum class olStoreUse { Own, LookAt };

/// Where the values of settings are kept between runs: one database file, written whole or not at all, that finds out
/// when it is damaged, a copy beside it to go back to, and a history of all saves. Several programs may use it at once.
/// What fails says why in a sentence that names the file.
class ORLO_HOST_EXPORT olPreferencesStore
{
    Q_DECLARE_TR_FUNCTIONS(olPreferencesStore)

public:
    using Key = olStoreRows::Key;
    using Values = olStoreRows::Values;

    /// The user's own store, in the configuration folder.
    [[nodiscard]] static QString userFile();

    /// With those on the way to it; each for its owner alone. False where it cannot be.
    [[nodiscard]] static bool makeFolder(const QString &folder);

    /// Nothing is opened or created before it is needed. Of a link the target is the store.
    explicit olPreferencesStore(const QString &file);

    [[nodiscard]] const QString &file() const { return m_file; }

    /// Reads everything. Where the file is damaged, the last good copy is read; a run of its own sets the file aside
    /// under a dated name and puts the copy in its place, and makes a sound file the last good copy. A file that does
    /// not exist yet holds nothing. Rows whose value cannot be understood stay in the file and are not among the
    /// values.
    olResult<olStoreRows::Contents> open(olStoreUse use = olStoreUse::Own);

    /// Only what the file itself holds: damage is a failure.
    olResult<olStoreRows::Contents> load();

    /// Whether the file may hold something else than when it was last read here. Cheap, to be asked all the time.
    [[nodiscard]] bool mayHaveChanged() const;

    /// Gives these settings the rows after the change; all others stay as they are. One transaction: on failure the
    /// file keeps what it held. With nothing to do the file is not touched. Where `left` is given, settings that do not
    /// have the row before the change any more stay too, and their changes go into it.
    olResult<> save(const std::vector<olStoreRows::Change> &changes, std::vector<olStoreRows::Change> *left = nullptr);

    /// Whether the last save() failed because the file is damaged or gone, which open() mends.
    [[nodiscard]] bool isBroken() const { return m_isBroken; }

    /// One sentence for each thing that is wrong with the file or its copy. Changes nothing.
    [[nodiscard]] QStringList check() const;

private:
    [[nodiscard]] bool isStore() const;
    [[nodiscard]] olFailure failure(const QString &fault, const olStoreError &error) const;
    [[nodiscard]] olStoreRows::Contents readFile();
    void keepCopy(const olStoreRows::Contents &contents) const;
    [[nodiscard]] olStoreRows::Contents mend(const QString &reason, olStoreUse use);
    void change(const std::vector<olStoreRows::Change> &changes, std::vector<olStoreRows::Change> *left) const;

    QString m_file;
    QString m_copy;
    QByteArray m_stamp; ///< empty where the file is to be read again
    bool m_isStore = false;
    bool m_isBroken = false;
};
