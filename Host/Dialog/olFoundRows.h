#pragma once

#include "Dialog/olFoundSettings.h"
#include "Dialog/olSettingWords.h"
#include "Editing/olPendingChanges.h"
#include "Editing/olSettingsSearch.h"

#include <QCoreApplication>
#include <QHash>
#include <QString>

#include <map>
#include <vector>

class olPreferencesEntry;

/// The settings that match a search, or differ from their defaults, over all pages.
class olFoundRows
{
    Q_DECLARE_TR_FUNCTIONS(olFoundRows)

public:
    /// A page that was found as such has no control.
    struct Row {
        const olPreferencesEntry *entry = nullptr;
        olFoundControl control;
    };

    /// All must outlive this object.
    olFoundRows(olSettingsSearch &search, const olPendingChanges &pending, const olSettingWords &words);

    /// In place of what was found before. An empty text finds everything.
    void find(const QString &text, bool changedOnly);
    void clear();

    [[nodiscard]] int size() const { return int(m_rows.size()); }

    /// Nothing of nowhere where there is no such row.
    [[nodiscard]] Row row(int row) const;
    [[nodiscard]] QString text(int row, olFoundSettings::Column column) const;

    /// By their modules; one that was found by its name alone has none.
    [[nodiscard]] std::map<const olPreferencesEntry *, int> counts() const;

    /// On that module's page, in the order of its form.
    [[nodiscard]] std::vector<olFoundControl> hits(const olPreferencesEntry *entry) const
    {
        return m_hits.value(entry);
    }

private:
    olSettingsSearch &m_search;
    const olPendingChanges &m_pending;
    const olSettingWords &m_words;
    std::vector<Row> m_rows;
    QHash<const olPreferencesEntry *, std::vector<olFoundControl>> m_hits;
};
