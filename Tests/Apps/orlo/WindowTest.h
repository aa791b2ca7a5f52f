#pragma once

#include "Support/PluginTest.h"
#include "olMainWindow.h"

#include "Session/olPreferencesSession.h"

#include <QAction>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeWidget>

/// The viewer's window with the sample open, as it is after a first start.
class WindowTest : public PluginTest
{
protected:
    WindowTest();
    ~WindowTest() override;

    /// The action of the menus with that text, without its mark for the keyboard.
    QAction &action(const char *text);

    /// The first node of the tree with that name.
    QTreeWidgetItem &node(const char *name);
    [[nodiscard]] static QString idOf(const QTreeWidgetItem &item) { return item.data(0, Qt::UserRole).toString(); }

    /// Whether a node can be seen in the tree without scrolling.
    bool isInSight(QTreeWidgetItem &item);

    /// Clicks a check box as a person does.
    static void tick(QWidget &box);

    /// Drops files onto the window; whether it takes them.
    bool drop(const QStringList &files);

    /// Whether the view shows that picture, but for what rounding explains.
    [[nodiscard]] bool isLike(const QImage &picture);

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }

    QTemporaryDir folder;
    const bool remembersNothing =
        (QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder.path()), true);
    olPreferencesSession session{folder.filePath("preferences.db"), {}};
    olMainWindow window{session};
    QTreeWidget &tree = *window.findChild<QTreeWidget *>("sceneTree");
    olViewport &view = *window.viewport();
};
