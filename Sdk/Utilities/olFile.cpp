#include "Utilities/olFile.h"

#include <QDir>
#include <QFileInfo>

bool olFile::exists(const std::string &path, bool onlyFile, bool onlyWritable)
{
    const QFileInfo info(QString::fromStdString(path));
    return info.exists() && (!onlyFile || info.isFile()) && (!onlyWritable || info.isWritable());
}

QString olFile::convertSeparators(const QString &path) { return QDir::toNativeSeparators(path); }
