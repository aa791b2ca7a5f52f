#pragma once

#include "Session/olPreferencesFile.h"
#include "Store/olStoreRows.h"
#include "olHostExport.h"

#include <QString>

#include <optional>
#include <vector>

class olPreferencesSession;

/// What taking back the last saves of a store would change, before anything is done.
class ORLO_HOST_EXPORT olUndo
{
public:
    /// Settings that changed since, in a way that the saves do not tell, and locked ones are left as they are.
    olUndo(olPreferencesSession &session, std::size_t saves);

    /// Why the store cannot be read; then there are no saves.
    [[nodiscard]] const QString &error() const { return m_error; }

    /// All saves that are remembered, the earliest first.
    [[nodiscard]] const olStoreRows::History &history() const { return m_history; }

    /// From what each setting has now to what it would have.
    [[nodiscard]] const std::vector<olStoreRows::Change> &changes() const { return m_changes; }
    [[nodiscard]] const std::vector<olSkippedSetting> &left() const { return m_left; }

    /// Stores the changes, as a save of its own. Returns an empty text or one sentence that says why not.
    [[nodiscard]] QString save();

    /// A setting's value in a row; where it has none the default, which may be empty.
    [[nodiscard]] boost::any value(const olStoreRows::Key &key, const std::optional<olStoreRows::Row> &row) const;

private:
    void add(const olStoreRows::Key &key, const std::optional<olStoreRows::Change> &change,
             const olStoreRows::Rows &rows);

    olPreferencesSession &m_session;
    QString m_error;
    olStoreRows::History m_history;
    std::vector<olStoreRows::Change> m_changes;
    std::vector<olSkippedSetting> m_left;
};
