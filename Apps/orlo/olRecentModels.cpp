#include "olRecentModels.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace
{

constexpr int most = 10;
constexpr auto filesKey = "recentModels";

QStringList stored() { return QSettings().value(QLatin1String(filesKey)).toStringList(); }

/// Files of one name lie in different folders, whose name the home directory need not make longer.
QString folderOf(const QString &file)
{
    const QString folder = QFileInfo(file).path();
    const QString home = QDir::homePath();
    return folder == home || folder.startsWith(home + QLatin1Char('/')) ? QLatin1Char('~') + folder.mid(home.size())
                                                                        : folder;
}

} // namespace

olRecentModels::olRecentModels(QWidget *parent) : QMenu(tr("Open &Recent"), parent)
{
    setToolTipsVisible(true);
    // Another window may have opened something since.
    connect(this, &QMenu::aboutToShow, this, &olRecentModels::fill);
    fill();
}

void olRecentModels::add(const QStringList &files)
{
    QStringList all = files + stored();
    all.removeDuplicates();
    store(all.mid(0, most));
}

void olRecentModels::remove(const QString &file)
{
    QStringList all = stored();
    all.removeAll(file);
    store(all);
}

void olRecentModels::store(const QStringList &files)
{
    QSettings().setValue(QLatin1String(filesKey), files);
    fill();
}

void olRecentModels::fill()
{
    clear();
    const QStringList files = stored();
    for (int index = 0; index < files.size(); ++index) {
        const QString &file = files.at(index);
        QString name = QFileInfo(file).fileName();
        QString folder = folderOf(file);
        const QString number = index < 9 ? QStringLiteral("&%1").arg(index + 1) : QString::number(index + 1);
        const QString text = tr("%1  %2 (%3)")
                                 .arg(number, name.replace(QLatin1Char('&'), QStringLiteral("&&")),
                                      folder.replace(QLatin1Char('&'), QStringLiteral("&&")));
        QAction *open = addAction(text);
        open->setToolTip(file);
        connect(open, &QAction::triggered, this, [this, file] { emit chosen(file); });
    }
    if (!files.isEmpty()) {
        addSeparator();
        connect(addAction(tr("&Clear")), &QAction::triggered, this, [this] { store({}); });
    }
    menuAction()->setEnabled(!files.isEmpty());
}
