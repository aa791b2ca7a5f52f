#include "Editing/olSettingsSearch.h"

#include "Editing/olPlainText.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"

#include <algorithm>

namespace
{

// Stands between the texts of a control, so that no word is found across two of them.
constexpr QChar border(0x1f);

olFoundControl indexed(const olPageControl &control)
{
    olFoundControl found;
    found.widget = control.widget;
    for (QWidget *label : control.labels)
        found.labels.emplace_back(label);
    found.name = control.names.value(0);
    found.keys = control.settingKeys;
    const QStringList texts =
        control.names + control.choices + control.settingKeys + QStringList{olPlainText(control.toolTip)};
    found.searched = texts.join(border).toCaseFolded();
    return found;
}

bool hasAll(const QString &text, const QStringList &words)
{
    return std::all_of(words.begin(), words.end(), [&text](const QString &word) { return text.contains(word); });
}

bool isHit(const olPreferencesEntry &entry, const olFoundControl &control, const QStringList &words)
{
    return hasAll(control.searched, words) && control.widget && olPageIndex::isShown(*entry.page(), *control.widget);
}

} // namespace

olSettingsSearch::olSettingsSearch()
{
    const auto *registry = &olPreferencesRegistry::the();
    connect(registry, &olPreferencesRegistry::changed, this, &olSettingsSearch::invalidate);
    connect(registry, &olPreferencesRegistry::pageAboutToGo, this, &olSettingsSearch::invalidate);
}

void olSettingsSearch::invalidate() { m_pages.clear(); }

std::vector<olSearchResult> olSettingsSearch::find(const QString &text)
{
    const QStringList words = text.toCaseFolded().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    std::vector<olSearchResult> results;
    for (const olPreferencesEntry *entry : olPreferencesRegistry::the().entries()) {
        olSearchResult result{entry, {}};
        for (const olFoundControl &control : controls(*entry)) {
            if (isHit(*entry, control, words))
                result.hits.push_back(&control);
        }
        if (!result.hits.empty() || (entry->page() && hasAll(entry->name().toCaseFolded(), words)))
            results.push_back(std::move(result));
    }
    return results;
}

const std::vector<olFoundControl> &olSettingsSearch::controls(const olPreferencesEntry &entry)
{
    const auto known = m_pages.find(&entry);
    if (known != m_pages.end())
        return known->second;
    std::vector<olFoundControl> &controls = m_pages[&entry];
    if (const QWidget *page = entry.page()) {
        const olPageIndex index(*page);
        for (const olPageControl &control : index.controls())
            controls.push_back(indexed(control));
    }
    return controls;
}

const olFoundControl *olSettingsSearch::control(const std::string &key)
{
    const QString name = QString::fromStdString(key);
    for (const olPreferencesEntry *entry : olPreferencesRegistry::the().entries()) {
        for (const olFoundControl &control : controls(*entry)) {
            if (control.keys.contains(name))
                return &control;
        }
    }
    return nullptr;
}
