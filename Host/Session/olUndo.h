#pragma once

#include "Session/olPreferencesFile.h"
#include "State/olResult.h"
#include "Store/olStoreRows.h"
#include "olHostExport.h"

#include <QCoreApplication>
#include <QString>
#include <boost/any.hpp>

#include <cstddef>
#include <optional>
#include <vector>

class olPreferencesSession;

/// What taking back the last saves of a store would change, before anything is done.
class ORLO_HOST_EXPORT olUndo
{
    Q_DECLARE_TR_FUNCTIONS(olUndo)

public:
    /// Fails where the store cannot be read. What is locked or was changed since is left as it is.
    static olResult<olUndo> of(olPreferencesSession &session, std::size_t saves);

    /// All saves that are remembered, the earliest first.
    [[nodiscard]] const olStoreRows::History &history() const { return m_history; }

    /// From what each setting has to what it would have.
    [[nodiscard]] const std::vector<olStoreRows::Change> &changes() const { return m_changes; }
    [[nodiscard]] const std::vector<olSkippedSetting> &left() const { return m_left; }

    /// Stores the changes, as a save of its own. Settings that changed even since of() are left as they are, too.
    olResult<> save();

    /// A setting's value in a row; where it has none the default, which may be empty.
    [[nodiscard]] boost::any value(const olStoreRows::Key &key, const std::optional<olStoreRows::Row> &row) const;

private:
    explicit olUndo(olPreferencesSession &session) : m_session(session) {}
    [[nodiscard]] static QString changedSince();

    olPreferencesSession &m_session;
    olStoreRows::History m_history;
    std::vector<olStoreRows::Change> m_changes;
    std::vector<olSkippedSetting> m_left;
};
