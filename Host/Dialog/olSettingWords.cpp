#include "Dialog/olSettingWords.h"

#include "Editing/olValueText.h"
#include "Session/olPreferencesSession.h"
#include "State/olPreferencesEntry.h"

#include <QStringList>

#include <cstddef>

olSettingWords::olSettingWords(const olPreferencesSession &session, const olPendingChanges &pending,
                               olSettingsSearch &search)
    : m_session(session), m_pending(pending), m_search(search)
{
}

QString olSettingWords::place(const std::string &key) const
{
    const olPreferencesEntry *owner = m_pending.ownerOf(key);
    const olFoundControl *control = m_search.control(key);
    const QString name = QString::fromStdString(key);
    if (!owner)
        return name;
    // One control may edit several settings, which only their keys tell apart.
    const bool isTold = control && control->keys.size() == 1 && !control->name.isEmpty();
    return tr("%1: %2", "module and setting").arg(owner->name(), isTold ? control->name : name);
}

QString olSettingWords::origin(const std::string &key) const
{
    switch (m_pending.stateOf(key)) {
    case olSettingState::Locked:
        return tr("locked");
    case olSettingState::Pending:
        return tr("pending");
    case olSettingState::Yours:
        return tr("yours");
    case olSettingState::Site:
        return tr("the site's");
    case olSettingState::Default:
        break;
    }
    return tr("default");
}

QString olSettingWords::lock(const olFoundControl &control, const std::string &key) const
{
    const auto reason = m_session.lockReason(key);
    return reason ? tr("%1 is locked: %2 The lock stands in %3.").arg(control.name, *reason, m_session.siteFile(key))
                  : QString();
}

olListedChange olSettingWords::change(const std::string &key, const boost::any &before, const boost::any &after) const
{
    return {place(key), QString::fromStdString(key), olValueText(key, before), olValueText(key, after), before, after};
}

std::vector<olListedChange> olSettingWords::pending() const
{
    std::vector<olListedChange> listed;
    for (const olPendingChange &pending : m_pending.list()) {
        if (pending.key.empty())
            listed.push_back({pending.entry->name(), {}, {}, tr("edited"), {}, {}});
        else
            listed.push_back(change(pending.key, pending.before, pending.after));
    }
    return listed;
}

QString olSettingWords::loss(const std::vector<olPendingChange> &changes) const
{
    constexpr std::size_t mostNamed = 5;
    QStringList lines{changes.size() == 1
                          ? tr("This change is not applied yet and would be lost:")
                          : tr("These %1 changes are not applied yet and would be lost:").arg(changes.size())};
    const std::size_t named = changes.size() > mostNamed ? mostNamed - 1 : changes.size();
    for (std::size_t index = 0; index < named; ++index) {
        const olPendingChange &change = changes[index];
        lines << QStringLiteral("    ") + (change.key.empty() ? change.entry->name() : place(change.key));
    }
    if (named < changes.size())
        lines << QStringLiteral("    ") + tr("and %1 more").arg(changes.size() - named);
    return lines.join(QLatin1Char('\n'));
}
