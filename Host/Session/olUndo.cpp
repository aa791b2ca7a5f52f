#include "Session/olUndo.h"

#include "Session/olPreferencesSession.h"

#include <QCoreApplication>

#include <algorithm>
#include <map>

using namespace olStoreRows;

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olUndo)
};

} // namespace

olUndo::olUndo(olPreferencesSession &session, std::size_t saves) : m_session(session)
{
    Rows rows;
    m_error = session.store().readHistory(m_history, rows);
    // The value before the earliest of the saves, and what the latest made of it; nothing where one does not follow on
    // the other.
    std::map<Key, std::optional<Change>> whole;
    const auto first = m_history.end() - std::ptrdiff_t(std::min(saves, m_history.size()));
    std::for_each(first, m_history.end(), [&whole](const Save &save) {
        for (const Change &change : save.changes) {
            const auto [known, isNew] = whole.emplace(change.key, change);
            if (!isNew && known->second && known->second->after == change.before)
                known->second->after = change.after;
            else if (!isNew)
                known->second.reset();
        }
    });
    for (const auto &[key, change] : whole)
        add(key, change, rows);
}

void olUndo::add(const Key &key, const std::optional<Change> &change, const Rows &rows)
{
    const auto found = rows.find(key);
    const std::optional<Row> now = found == rows.end() ? std::nullopt : std::optional<Row>(found->second);
    if (const auto reason = m_session.lockReason(key.second))
        m_left.push_back({key.second, Words::tr("is locked: %1").arg(*reason)});
    else if (!change || change->after != now)
        m_left.push_back({key.second, Words::tr("was changed since")});
    else if (change->before != now)
        m_changes.push_back({key, now, change->before});
}

QString olUndo::save()
{
    Changes changes;
    for (const Change &change : m_changes)
        changes[change.key] = change.after;
    return m_session.store().save(changes);
}

boost::any olUndo::value(const Key &key, const std::optional<Row> &row) const
{
    return row ? olPreferencesStore::valueOf(*row) : m_session.defaultValue(key.second);
}
