#include "Dialog/olOutsideLine.h"

#include "Dialog/olMessageLine.h"
#include "Editing/olPendingChanges.h"
#include "State/olListed.h"
#include "State/olValue.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

olOutsideLine::olOutsideLine(olPreferencesSession &session, olPendingChanges &pending, PlaceOf placeOf, TextOf textOf)
    : m_pending(pending),
      m_placeOf(std::move(placeOf)),
      m_textOf(std::move(textOf)),
      m_message(new olMessageLine),
      m_theirs(new QPushButton),
      m_mine(new QPushButton)
{
    setObjectName(QStringLiteral("outsideChanges"));
    m_theirs->setObjectName(QStringLiteral("useTheirs"));
    m_mine->setObjectName(QStringLiteral("keepMine"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_message);
    // Below the text, which names a program, a setting and values, and needs the whole width of a narrow dialog.
    auto *choices = new QHBoxLayout;
    choices->addStretch(1);
    for (QPushButton *button : {m_theirs, m_mine}) {
        button->setAutoDefault(false);
        choices->addWidget(button);
    }
    layout->addLayout(choices);
    setVisible(false);
    connect(&session, &olPreferencesSession::changedOutside, this, &olOutsideLine::tell);
    // A change that is applied, dropped or edited back leaves nothing to choose.
    connect(&pending, &olPendingChanges::edited, this, &olOutsideLine::ask);
    connect(m_message, &olMessageLine::closed, this, &olOutsideLine::clear);
    connect(m_mine, &QPushButton::clicked, this, [this] {
        m_conflicts.pop_front();
        ask();
    });
    connect(m_theirs, &QPushButton::clicked, this, [this] {
        const olOutsideChange theirs = m_conflicts.front();
        m_conflicts.pop_front();
        m_pending.put({{theirs.key, theirs.after}});
        ask();
    });
}

void olOutsideLine::clear()
{
    m_told.clear();
    m_conflicts.clear();
    setVisible(false);
}

bool olOutsideLine::isPending(const olOutsideChange &change) const
{
    return m_pending.isPending(change.key) && !olValue::equal(m_pending.value(change.key), change.after);
}

QString olOutsideLine::told(const olOutsideChange &change) const
{
    return tr("%1 set %2 to %3.", "program, setting and value")
        .arg(change.program.isEmpty() ? tr("Another program") : change.program, m_placeOf(change.key),
             m_textOf(change.key, change.after));
}

void olOutsideLine::tell(const std::vector<olOutsideChange> &changes)
{
    // Who does not look at the dialog has nothing pending in it either.
    if (!window()->isVisible())
        return;
    QStringList lines;
    for (const olOutsideChange &change : changes) {
        m_conflicts.erase(std::remove_if(m_conflicts.begin(), m_conflicts.end(),
                                         [&change](const auto &known) { return known.key == change.key; }),
                          m_conflicts.end());
        if (isPending(change))
            m_conflicts.push_back(change);
        else
            lines << told(change);
    }
    constexpr int mostLines = 3;
    if (lines.size() > mostLines) {
        const int more = lines.size() - mostLines + 1;
        lines = lines.mid(0, mostLines - 1) << tr("%1 more settings were changed.").arg(more);
    }
    if (!lines.isEmpty())
        m_told = lines;
    if (m_conflicts.empty())
        showLines(m_told);
    ask();
}

void olOutsideLine::showLines(const QStringList &lines)
{
    if (!lines.isEmpty())
        m_message->showNote(lines.join(QLatin1Char('\n')));
    setVisible(!lines.isEmpty());
}

void olOutsideLine::ask()
{
    while (!m_conflicts.empty() && !isPending(m_conflicts.front()))
        m_conflicts.pop_front();
    const bool wasAsking = !m_theirs->isHidden();
    m_theirs->setVisible(!m_conflicts.empty());
    m_mine->setVisible(!m_conflicts.empty());
    if (m_conflicts.empty()) {
        if (wasAsking)
            showLines(m_told);
        return;
    }
    const olOutsideChange &conflict = m_conflicts.front();
    const QString mine = m_textOf(conflict.key, m_pending.value(conflict.key));
    showLines(m_told + QStringList(olSentences({told(conflict), tr("Your change to %1 is pending.").arg(mine)})));
    m_theirs->setText(tr("&Use %1").arg(m_textOf(conflict.key, conflict.after)));
    m_mine->setText(tr("&Keep %1").arg(mine));
}
