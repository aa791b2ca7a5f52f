#pragma once

#include "Editing/olSettingsSearch.h"

#include <QHash>
#include <QObject>
#include <QPoint>

class QMenu;
class olPendingChanges;
class olPreferencesSession;

/// The context menu of the controls that edit settings, and their card: what the default is, where the value comes from
/// and when it has its effect; take the edit back, go back to the default, copy key and value, and why it is locked. It
/// adds to a text field's own menu and takes the place of none. By mouse it also opens on a control's label.
class olSettingMenu : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this object.
    olSettingMenu(const olPreferencesSession &session, olPendingChanges &changes);

    /// From here on the page's controls have the menu. It ends with them.
    void addTo(const std::vector<olFoundControl> &controls);

    /// Opens the menu of the control that the widget is, or is a part of, as a key press asks for it. False where the
    /// widget belongs to no setting.
    bool openFor(QWidget *widget);
    bool openFor(QWidget *widget, const QPoint &globalPosition);

    /// The setting that the widget edits, or is a part of; empty where it belongs to none.
    [[nodiscard]] QString keyOf(const QWidget *widget) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// Someone wants to know why the setting is locked.
    void lockAsked(const olFoundControl &control, const QString &key);

private:
    void open(QWidget &asked, const QPoint &globalPosition);
    void addFacts(QMenu &menu, const olFoundControl &control);
    void addResets(QMenu &menu, const olFoundControl &control);
    void addKeys(QMenu &menu, const olFoundControl &control);
    void addValue(QMenu &menu, const olFoundControl &control);
    void addLocks(QMenu &menu, const olFoundControl &control);

    const olPreferencesSession &m_session;
    olPendingChanges &m_changes;
    QHash<const QObject *, olFoundControl> m_controls;
};
