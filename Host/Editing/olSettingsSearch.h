#pragma once

#include "Editing/olPageIndex.h"
#include "olHostExport.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <map>
#include <string>
#include <vector>

class olPreferencesEntry;

/// How many letters must be typed in another way to get from one word to the other; more than the most is not counted.
[[nodiscard]] ORLO_HOST_EXPORT int olTypingDistance(const QString &left, const QString &right, int most);

/// One control as the search knows it. The widgets are null once they are gone.
struct olFoundControl {
    QPointer<QWidget> widget;
    std::vector<QPointer<QWidget>> labels;
    QString name;
    QStringList keys;
    QStringList captions; ///< of tabs, frames and groups around it, outermost first
    QStringList texts;    ///< in which it is searched
    QString searched;     ///< these and their English ones as they are compared, once somebody searches
};

/// A page on which something was found, and what.
struct olSearchResult {
    const olPreferencesEntry *entry = nullptr;
    std::vector<const olFoundControl *> hits;
};

/// Finds controls on all pages by label, caption, tooltip, choice text and key; case and hyphens aside, and where that
/// finds nothing, also with a slip or two in longer words. What a page hides is not found. A page
/// is indexed when it is asked for first, so that opening one page need not wait for all; and again after modules or
/// pages come or go.
class olSettingsSearch : public QObject
{
    Q_OBJECT

public:
    olSettingsSearch();

    /// The pages with hits, in the order of the modules. Every word of the text must be found, case aside; an empty
    /// text finds every control. A page is also found by its own name. Valid until the pages change.
    [[nodiscard]] std::vector<olSearchResult> find(const QString &text);

    /// Of the module's page in the order of its form; none without a page. Valid until the pages change.
    [[nodiscard]] const std::vector<olFoundControl> &controls(const olPreferencesEntry &entry);

    /// The control that edits the setting; null where none does.
    [[nodiscard]] const olFoundControl *control(const std::string &key);

    /// To be called when texts or controls of pages may have changed.
    void invalidate();

private:
    [[nodiscard]] std::vector<olFoundControl> &page(const olPreferencesEntry &entry);

    std::map<const olPreferencesEntry *, std::vector<olFoundControl>> m_pages;
};
