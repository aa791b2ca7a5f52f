#include "Kernel/olTexSearch.h"

#include "Kernel/olPreferences.h"
#include "State/olHostState.h"
#include "State/olJournal.h"
#include "Utilities/olFile.h"
#include "Utilities/olMessage.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

namespace
{

std::vector<std::string> existing(const std::vector<std::string> &paths)
{
    std::vector<std::string> directories;
    QSet<QString> taken;
    for (const std::string &path : paths) {
        const QFileInfo info(QString::fromStdString(path));
        // The canonical path makes one of the many spellings of a directory, links among them.
        if (path.empty() || !info.isDir() || taken.contains(info.canonicalFilePath()))
            continue;
        taken.insert(info.canonicalFilePath());
        directories.push_back(QDir::cleanPath(info.absoluteFilePath()).toStdString());
    }
    return directories;
}

bool isFile(const QString &path) { return olFile::exists(path.toStdString(), true, false); }

QString search(const std::vector<std::string> &directories, const QString &name)
{
    for (const std::string &directory : directories) {
        const QString path = QDir(QString::fromStdString(directory)).filePath(name);
        if (isFile(path))
            return path;
    }
    return {};
}

} // namespace

void olTexSearch::set()
{
    olJournal::call("olTexSearch::set");
    const auto *paths =
        boost::any_cast<std::vector<std::string>>(&olPreferences::getData().get("texture search paths"));
    olHostState::the().textureSearchPaths = paths ? existing(*paths) : std::vector<std::string>();
}

const std::vector<std::string> &olTexSearch::directories() { return olHostState::the().textureSearchPaths; }

std::string olTexSearch::find(const std::string &texture) { return findIn(directories(), texture); }

std::string olTexSearch::findIn(const std::vector<std::string> &directories, const std::string &texture)
{
    // Models from elsewhere bring the other system's separators.
    const QString path = QString::fromStdString(texture).replace('\\', '/');
    if (path.isEmpty())
        return {};
    if (QDir::isAbsolutePath(path) && isFile(path))
        return path.toStdString();

    const QString relative = QDir::isRelativePath(path) ? search(directories, path) : QString();
    const QString found = relative.isEmpty() ? search(directories, path.section('/', -1)) : relative;
    return found.toStdString();
}
