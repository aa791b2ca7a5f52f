#include "Dialog/olFoundRows.h"

#include "Editing/olValueText.h"
#include "State/olPreferencesEntry.h"

#include <QStringList>

#include <algorithm>
#include <cstddef>

olFoundRows::olFoundRows(olSettingsSearch &search, const olPendingChanges &pending, const olSettingWords &words)
    : m_search(search), m_pending(pending), m_words(words)
{
}

void olFoundRows::find(const QString &text, bool changedOnly)
{
    clear();
    for (const olSearchResult &result : m_search.find(text)) {
        std::vector<olFoundControl> hits;
        for (const olFoundControl *hit : result.hits) {
            const bool isChanged = std::any_of(hit->keys.begin(), hit->keys.end(), [&](const QString &key) {
                return m_pending.differsFromDefault(*result.entry, key.toStdString());
            });
            if (isChanged || !changedOnly)
                hits.push_back(*hit);
        }
        for (const olFoundControl &hit : hits)
            m_rows.push_back({result.entry, hit});
        if (hits.empty() && !changedOnly)
            m_rows.push_back({result.entry, {}});
        if (!hits.empty())
            m_hits.insert(result.entry, hits);
    }
    // Who types a name means what is called so before what only mentions it.
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    std::stable_partition(m_rows.begin(), m_rows.end(), [&words](const Row &row) {
        return std::all_of(words.begin(), words.end(), [&row](const QString &word) {
            return row.control.name.contains(word, Qt::CaseInsensitive);
        });
    });
}

void olFoundRows::clear()
{
    m_rows.clear();
    m_hits.clear();
}

olFoundRows::Row olFoundRows::row(int row) const { return row >= 0 && row < size() ? m_rows[std::size_t(row)] : Row(); }

QString olFoundRows::text(int row, olFoundSettings::Column column) const
{
    const auto [entry, control] = this->row(row);
    if (!entry)
        return {};
    switch (column) {
    case olFoundSettings::Label:
        return control.widget ? control.name : entry->name();
    case olFoundSettings::Where:
        return control.widget ? (QStringList(entry->name()) + control.captions).join(QStringLiteral(" \u203a "))
                              : tr("Page");
    case olFoundSettings::Value: {
        QStringList values;
        for (const QString &key : control.keys)
            values << olShortValueText(key.toStdString(), m_pending.value(key.toStdString()));
        return values.join(QStringLiteral("; "));
    }
    default:
        return control.keys.isEmpty() ? QString() : m_words.origin(control.keys.first().toStdString());
    }
}

std::map<const olPreferencesEntry *, int> olFoundRows::counts() const
{
    std::map<const olPreferencesEntry *, int> counts;
    for (const Row &row : m_rows)
        counts[row.entry] += row.control.widget ? 1 : 0;
    return counts;
}
