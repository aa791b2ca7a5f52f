#pragma once

#include "Session/olPreferencesSession.h"

#include <QStringList>
#include <QWidget>

#include <deque>
#include <functional>
#include <string>
#include <vector>

class QPushButton;
class olMessageLine;
class olPendingChanges;

/// The line of the dialog that says what another program has changed meanwhile. Where the same setting has a pending
/// change here, it shows both values and lets one choose. Out of sight while there is nothing to say.
class olOutsideLine : public QWidget
{
    Q_OBJECT

public:
    /// How a person finds a setting, and reads a value of it.
    using PlaceOf = std::function<QString(const std::string &key)>;
    using TextOf = std::function<QString(const std::string &key, const boost::any &value)>;

    /// Session and changes must outlive it.
    olOutsideLine(olPreferencesSession &session, olPendingChanges &pending, PlaceOf placeOf, TextOf textOf);

    void clear();

private:
    void tell(const std::vector<olOutsideChange> &changes);
    void ask();
    void showLines(const QStringList &lines);
    [[nodiscard]] bool isPending(const olOutsideChange &change) const;
    [[nodiscard]] QString told(const olOutsideChange &change) const;

    olPendingChanges &m_pending;
    PlaceOf m_placeOf;
    TextOf m_textOf;
    olMessageLine *m_message;
    QPushButton *m_theirs;
    QPushButton *m_mine;
    QStringList m_told;
    std::deque<olOutsideChange> m_conflicts;
};
