#pragma once

#include "Dialog/olChangesView.h"
#include "Editing/olPendingChanges.h"
#include "Editing/olSettingsSearch.h"

#include <QCoreApplication>
#include <QString>
#include <boost/any.hpp>

#include <string>
#include <vector>

class olPreferencesSession;

/// What a person reads of settings and of their changes.
class olSettingWords
{
    Q_DECLARE_TR_FUNCTIONS(olSettingWords)

public:
    /// All must outlive this object.
    olSettingWords(const olPreferencesSession &session, const olPendingChanges &pending, olSettingsSearch &search);

    /// As a person finds it: the page and the control's name; without a control the key.
    [[nodiscard]] QString place(const std::string &key) const;

    /// Where its value comes from, in a word.
    [[nodiscard]] QString origin(const std::string &key) const;

    /// Why it is locked, and by which file; empty where it is not locked.
    [[nodiscard]] QString lock(const olFoundControl &control, const std::string &key) const;

    [[nodiscard]] olListedChange change(const std::string &key, const boost::any &before,
                                        const boost::any &after) const;

    /// What is pending, row by row.
    [[nodiscard]] std::vector<olListedChange> pending() const;

    /// That these would be lost, the first few of them by name.
    [[nodiscard]] QString loss(const std::vector<olPendingChange> &changes) const;

private:
    const olPreferencesSession &m_session;
    const olPendingChanges &m_pending;
    olSettingsSearch &m_search;
};
