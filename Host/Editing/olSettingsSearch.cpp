#include "Editing/olSettingsSearch.h"

#include "Editing/olPlainText.h"
#include "Session/olTranslations.h"
#include "State/olPreferencesEntry.h"
#include "State/olPreferencesRegistry.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <utility>

namespace
{

// Stands between the texts of a control, so that no word is found across two of them.
constexpr QChar border(0x1f);

/// As it is compared: whoever writes "antialiasing" also means "Anti-Aliasing".
QString folded(QString text) { return text.remove(QLatin1Char('-')).toCaseFolded(); }

/// Whether the word stands there but for a slip of the fingers. Short words have too many neighbours for that.
bool isNearly(const QString &text, const QString &word)
{
    constexpr int shortest = 5;
    constexpr int lengthForTwo = 9;
    if (text.contains(word))
        return true;
    if (word.size() < shortest)
        return false;
    const int most = word.size() < lengthForTwo ? 1 : 2;
    static const QRegularExpression apart(QStringLiteral("[^\\w]+"));
    const auto parts = text.splitRef(apart, Qt::SkipEmptyParts);
    return std::any_of(parts.begin(), parts.end(),
                       [&](const QStringRef &part) { return olTypingDistance(word, part.toString(), most) <= most; });
}

/// Empty where that is what the person sees.
QString inEnglish(const QString &text)
{
    QStringList all = olTranslations::english(text);
    std::transform(all.begin(), all.end(), all.begin(), olPlainText);
    return all.join(border);
}

olFoundControl indexed(const olPageControl &control)
{
    olFoundControl found;
    found.widget = control.widget;
    for (QWidget *label : control.labels)
        found.labels.emplace_back(label);
    found.name = control.names.value(0);
    found.keys = control.settingKeys;
    found.captions = control.captions;
    found.texts = control.names + control.captions + control.choices + QStringList{control.toolTip};
    return found;
}

QString comparable(const olFoundControl &control)
{
    QStringList texts = control.keys;
    for (const QString &text : control.texts)
        texts << olPlainText(text) << inEnglish(text);
    return folded(texts.join(border));
}

using Compare = bool (*)(const QString &text, const QString &word);

bool stands(const QString &text, const QString &word) { return text.contains(word); }

bool hasAll(const QString &text, const QStringList &words, Compare compare)
{
    return std::all_of(words.begin(), words.end(), [&](const QString &word) { return compare(text, word); });
}

bool isHit(const olPreferencesEntry &entry, const olFoundControl &control, const QStringList &words, Compare compare)
{
    return control.widget && hasAll(control.searched, words, compare) &&
           olPageIndex::isShown(*entry.page(), *control.widget);
}

} // namespace

int olTypingDistance(const QString &left, const QString &right, int most)
{
    if (std::abs(left.size() - right.size()) > most)
        return most + 1;
    std::vector<int> before(std::size_t(right.size()) + 1);
    std::iota(before.begin(), before.end(), 0);
    std::vector<int> last = before;
    std::vector<int> row = before;
    for (int at = 0; at < left.size(); ++at) {
        row[0] = at + 1;
        for (int other = 0; other < right.size(); ++other) {
            const auto here = std::size_t(other);
            row[here + 1] =
                std::min({last[here] + (left[at] == right[other] ? 0 : 1), last[here + 1] + 1, row[here] + 1});
            // Two letters in the wrong order are one slip.
            if (at > 0 && other > 0 && left[at] == right[other - 1] && left[at - 1] == right[other])
                row[here + 1] = std::min(row[here + 1], before[here - 1] + 1);
        }
        before = std::exchange(last, row);
    }
    return last.back();
}

olSettingsSearch::olSettingsSearch()
{
    const auto *news = &olPreferencesRegistry::the().news();
    connect(news, &olRegistryNews::changed, this, &olSettingsSearch::invalidate);
    connect(news, &olRegistryNews::pageAboutToGo, this, &olSettingsSearch::invalidate);
}

void olSettingsSearch::invalidate() { m_pages.clear(); }

std::vector<olSearchResult> olSettingsSearch::find(const QString &text)
{
    const QStringList words = folded(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    std::vector<olSearchResult> results;
    for (const Compare compare : {stands, isNearly}) {
        for (const olPreferencesEntry *entry : olPreferencesRegistry::the().entries()) {
            olSearchResult result{entry, {}};
            for (olFoundControl &control : page(*entry)) {
                if (control.searched.isEmpty())
                    control.searched = comparable(control);
                if (isHit(*entry, control, words, compare))
                    result.hits.push_back(&control);
            }
            const QString name = entry->name() + border + inEnglish(entry->name());
            if (!result.hits.empty() || (entry->page() && hasAll(folded(name), words, compare)))
                results.push_back(std::move(result));
        }
        if (!results.empty())
            break;
    }
    return results;
}

const std::vector<olFoundControl> &olSettingsSearch::controls(const olPreferencesEntry &entry) { return page(entry); }

std::vector<olFoundControl> &olSettingsSearch::page(const olPreferencesEntry &entry)
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
