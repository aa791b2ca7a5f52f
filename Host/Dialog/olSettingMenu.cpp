#include "Dialog/olSettingMenu.h"

#include "Editing/olEffectText.h"
#include "Editing/olPendingChanges.h"
#include "Editing/olValueText.h"
#include "Session/olPreferencesFile.h"
#include "Session/olPreferencesSession.h"
#include "State/olListed.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <algorithm>

namespace
{

/// A text field's own menu to cut, copy and paste with, else an empty one.
QMenu *standardMenu(QWidget &widget)
{
    QWidget *field = widget.focusProxy() ? widget.focusProxy() : &widget;
    if (!qobject_cast<QLineEdit *>(field) && field->findChild<QLineEdit *>())
        field = field->findChild<QLineEdit *>();
    QMenu *menu = nullptr;
    if (auto *line = qobject_cast<QLineEdit *>(field))
        menu = line->createStandardContextMenu();
    else if (auto *plain = qobject_cast<QPlainTextEdit *>(field))
        menu = plain->createStandardContextMenu();
    else if (auto *rich = qobject_cast<QTextEdit *>(field))
        menu = rich->createStandardContextMenu();
    if (!menu)
        return new QMenu(&widget);
    menu->setParent(&widget, menu->windowFlags());
    menu->addSeparator();
    return menu;
}

} // namespace

olSettingMenu::olSettingMenu(const olPreferencesSession &session, olPendingChanges &changes)
    : m_session(session), m_changes(changes)
{
}

void olSettingMenu::addTo(const std::vector<olFoundControl> &controls)
{
    const auto add = [this](QWidget *widget, const olFoundControl &control) {
        if (!widget || m_controls.contains(widget))
            return;
        m_controls.insert(widget, control);
        widget->installEventFilter(this);
        connect(widget, &QObject::destroyed, this, [this](const QObject *gone) { m_controls.remove(gone); });
    };
    for (const olFoundControl &control : controls) {
        if (control.keys.isEmpty() || !control.widget)
            continue;
        add(control.widget, control);
        for (const auto &label : control.labels)
            add(label, control);
        // Text fields inside a control would open their own menu. What lies in a group box is a control itself.
        if (control.widget->inherits("QGroupBox"))
            continue;
        const auto parts = control.widget->findChildren<QWidget *>();
        for (QWidget *part : parts)
            add(part, control);
    }
}

QString olSettingMenu::keyOf(const QWidget *widget) const
{
    const auto known = m_controls.find(widget);
    return known == m_controls.end() ? QString() : known->keys.first();
}

bool olSettingMenu::openFor(QWidget *widget)
{
    return widget && openFor(widget, widget->mapToGlobal(widget->rect().bottomLeft()));
}

bool olSettingMenu::openFor(QWidget *widget, const QPoint &globalPosition)
{
    if (!widget || !m_controls.contains(widget))
        return false;
    open(*widget, globalPosition);
    return true;
}

bool olSettingMenu::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ContextMenu || !m_controls.contains(watched))
        return false;
    const auto &asked = static_cast<QContextMenuEvent &>(*event);
    auto &widget = static_cast<QWidget &>(*watched);
    if (asked.reason() == QContextMenuEvent::Keyboard)
        openFor(&widget);
    else
        open(widget, asked.globalPos());
    return true;
}

void olSettingMenu::open(QWidget &asked, const QPoint &globalPosition)
{
    const olFoundControl control = m_controls.value(&asked);
    // Deletes itself when it closes.
    QMenu *menu = standardMenu(asked);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("settingMenu"));
    addFacts(*menu, control);
    menu->addSeparator();
    addResets(*menu, control);
    menu->addSeparator();
    addKeys(*menu, control);
    addValue(*menu, control);
    addLocks(*menu, control);
    menu->popup(globalPosition);
}

/// What there is to know, as lines that cannot be chosen.
void olSettingMenu::addFacts(QMenu &menu, const olFoundControl &control)
{
    const auto add = [&menu](const QString &name, const QString &text) {
        QAction *fact = menu.addAction(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")));
        fact->setObjectName(name);
        fact->setEnabled(false);
    };
    const std::string key = control.keys.first().toStdString();
    const QString origin = m_session.origin(key);
    add(QStringLiteral("origin"), m_session.lockReason(key)           ? tr("Set by the site, and locked")
                                  : m_changes.isPending(key)          ? tr("Changed, not applied yet")
                                  : origin == QLatin1String("stored") ? tr("Set by you")
                                  : origin == QLatin1String("site")   ? tr("Set by the site")
                                                                      : tr("The default"));
    const QString effect = olEffectText::of(key, olPreferencesSession::description(key).effect).sentence;
    if (!effect.isEmpty())
        add(QStringLiteral("effect"), effect);
}

/// One control may edit several settings; they go back together.
void olSettingMenu::addResets(QMenu &menu, const olFoundControl &control)
{
    olSettingValues defaults;
    QStringList texts;
    bool differs = false;
    bool isLocked = false;
    for (const QString &name : control.keys) {
        const std::string key = name.toStdString();
        defaults[key] = m_session.defaultValue(key);
        texts << olShortValueText(key, defaults[key]);
        differs = differs || m_changes.differsFromDefault(key);
        isLocked = isLocked || m_session.lockReason(key).has_value();
    }
    QAction *takeBack = menu.addAction(tr("&Take Back"));
    takeBack->setObjectName(QStringLiteral("takeBack"));
    takeBack->setEnabled(std::any_of(control.keys.begin(), control.keys.end(),
                                     [this](const QString &name) { return m_changes.isPending(name.toStdString()); }));
    connect(takeBack, &QAction::triggered, this, [this, keys = control.keys] {
        for (const QString &key : keys)
            m_changes.takeBack(key.toStdString());
    });
    const QString shown = olListed(texts).replace(QLatin1Char('&'), QLatin1String("&&"));
    QAction *reset = menu.addAction(tr("&Reset to Default: %1").arg(shown));
    reset->setObjectName(QStringLiteral("reset"));
    reset->setEnabled(differs && !isLocked);
    connect(reset, &QAction::triggered, this, [this, defaults] { m_changes.put(defaults); });
}

void olSettingMenu::addKeys(QMenu &menu, const olFoundControl &control)
{
    for (const QString &key : control.keys) {
        QString shown = key;
        shown.replace(QLatin1Char('&'), QLatin1String("&&"));
        QAction *copy = menu.addAction(tr("Copy &Key \"%1\"").arg(shown));
        copy->setObjectName(QStringLiteral("copyKey"));
        connect(copy, &QAction::triggered, this, [key] { QApplication::clipboard()->setText(key); });
    }
}

void olSettingMenu::addValue(QMenu &menu, const olFoundControl &control)
{
    olSettingValues values;
    for (const QString &key : control.keys)
        values[key.toStdString()] = m_changes.value(key.toStdString());
    QAction *copy = menu.addAction(tr("Copy as &JSON"));
    copy->setObjectName(QStringLiteral("copyJson"));
    connect(copy, &QAction::triggered, this,
            [values] { QApplication::clipboard()->setText(QString::fromUtf8(olPreferencesFile::toJson(values))); });
}

void olSettingMenu::addLocks(QMenu &menu, const olFoundControl &control)
{
    for (const QString &key : control.keys) {
        if (!m_session.lockReason(key.toStdString()))
            continue;
        QAction *why = menu.addAction(tr("&Why Is This Locked?"));
        why->setObjectName(QStringLiteral("whyLocked"));
        connect(why, &QAction::triggered, this, [this, control, key] { emit lockAsked(control, key); });
        return;
    }
}
