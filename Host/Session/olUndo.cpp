#include "Session/olUndo.h"

#include "Session/olPreferencesSession.h"

#include <algorithm>
#include <map>

using namespace olStoreRows;

QString olUndo::changedSince() { return tr("was changed since"); }

olResult<olUndo> olUndo::of(olPreferencesSession &session, std::size_t saves)
{
    // What the session follows has still to come into force there.
    olResult<Contents> contents = olPreferencesStore(session.store().file()).load();
    if (!contents.isOk())
        return olFailure{contents.error()};
    olUndo undo(session);
    undo.m_history = std::move(contents->history);
    // From what it was before the earliest of the saves to what the latest made of it.
    std::map<Key, Change> whole;
    const auto first = undo.m_history.end() - std::ptrdiff_t(std::min(saves, undo.m_history.size()));
    std::for_each(first, undo.m_history.end(), [&whole](const Save &save) {
        for (const Change &change : save.changes)
            whole.emplace(change.key, change).first->second.after = change.after;
    });
    for (const auto &[key, change] : whole) {
        const auto row = contents->rows.find(key);
        const auto now = row == contents->rows.end() ? std::nullopt : std::optional(row->second);
        if (const auto reason = session.lockReason(key.second))
            undo.m_left.push_back({key.second, tr("is locked: %1").arg(*reason)});
        else if (change.before != change.after && now != change.after)
            undo.m_left.push_back({key.second, changedSince()});
        else if (change.before != change.after)
            undo.m_changes.push_back({key, change.after, change.before});
    }
    return undo;
}

olResult<> olUndo::save()
{
    std::vector<Change> left;
    olResult<> saved = m_session.store().save(m_changes, &left);
    for (const Change &change : left) {
        m_left.push_back({change.key.second, changedSince()});
        m_changes.erase(std::find_if(m_changes.begin(), m_changes.end(),
                                     [&change](const Change &known) { return known.key == change.key; }));
    }
    return saved;
}

boost::any olUndo::value(const Key &key, const std::optional<Row> &row) const
{
    return row ? row->parsed() : m_session.defaultValue(key.second);
}
