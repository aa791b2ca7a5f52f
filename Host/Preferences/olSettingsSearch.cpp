#include "Preferences/olSettingsSearch.h"

#include "Preferences/olPreferencesEntry.h"
#include "Preferences/olPreferencesRegistry.h"

#include <QTextDocument>
#include <QTextDocumentFragment>

#include <algorithm>

namespace
{

// Stands between the texts of a control, so that no word is found across two of them.
constexpr QChar border(0x1f);

QString withoutMarkup(const QString &text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

olFoundControl indexed(const olPageControl &control)
{
    olFoundControl found;
    found.widget = control.widget;
    for (QWidget *label : control.labels)
        found.labels.emplace_back(label);
    found.name = control.names.value(0);
    found.keys = control.settingKeys;
    const QStringList texts =
        control.names + control.choices + control.settingKeys + QStringList{withoutMarkup(control.toolTip)};
    found.searched = texts.join(border).toCaseFolded();
    return found;
}

bool hasAll(const QString &text, const QStringList &words)
{
    return std::all_of(words.begin(), words.end(), [&text](const QString &word) { return text.contains(word); });
}

bool isHit(const olSearchedPage &page, const olFoundControl &control, const QStringList &words)
{
    return hasAll(control.searched, words) && control.widget &&
           olPageIndex::isShown(*page.entry->page(), *control.widget);
}

} // namespace

olSettingsSearch::olSettingsSearch()
{
    const auto *registry = &olPreferencesRegistry::the();
    connect(registry, &olPreferencesRegistry::changed, this, &olSettingsSearch::invalidate);
    connect(registry, &olPreferencesRegistry::pageAboutToGo, this, &olSettingsSearch::invalidate);
}

std::vector<olSearchResult> olSettingsSearch::find(const QString &text)
{
    build();
    const QStringList words = text.toCaseFolded().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    std::vector<olSearchResult> results;
    for (const olSearchedPage &page : m_pages) {
        olSearchResult result{&page, {}};
        for (const olFoundControl &control : page.controls) {
            if (isHit(page, control, words))
                result.hits.push_back(&control);
        }
        if (!result.hits.empty() || hasAll(page.entry->name().toCaseFolded(), words))
            results.push_back(std::move(result));
    }
    return results;
}

const olSearchedPage *olSettingsSearch::page(const olPreferencesEntry &entry)
{
    build();
    const auto found = std::find_if(m_pages.begin(), m_pages.end(),
                                    [&entry](const olSearchedPage &page) { return page.entry == &entry; });
    return found == m_pages.end() ? nullptr : &*found;
}

const olFoundControl *olSettingsSearch::control(const std::string &key)
{
    build();
    const QString name = QString::fromStdString(key);
    for (const olSearchedPage &page : m_pages) {
        for (const olFoundControl &control : page.controls) {
            if (control.keys.contains(name))
                return &control;
        }
    }
    return nullptr;
}

void olSettingsSearch::build()
{
    if (m_isBuilt)
        return;
    m_isBuilt = true;
    m_pages.clear();
    for (olPreferencesEntry *entry : olPreferencesRegistry::the().entries()) {
        if (!entry->page())
            continue;
        olSearchedPage page{entry, {}};
        const olPageIndex index(*entry->page());
        for (const olPageControl &control : index.controls())
            page.controls.push_back(indexed(control));
        m_pages.push_back(std::move(page));
    }
}
