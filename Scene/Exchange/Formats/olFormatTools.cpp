#include "Exchange/Formats/olFormatTools.h"

#include "State/olListed.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>

QString olFormatTools::cutOff() { return olReason::tr("the file is cut off or damaged"); }

QString olFormatTools::damaged() { return olReason::tr("the file is damaged or of another format"); }

QString olFormatTools::noTemporary() { return olReason::tr("the temporary directory cannot be written to"); }

TCollection_AsciiString olFormatTools::path(const QString &file) { return QFile::encodeName(file).constData(); }

bool olFormatTools::writePlainly(const QString &file, const std::function<bool(const char *)> &write)
{
    const QString plain = QFileInfo(file).path() + QStringLiteral("/model");
    return write(QFile::encodeName(plain).constData()) && QFile::rename(plain, file);
}

QString olFormatTools::listed(const QStringList &names)
{
    constexpr int most = 4;
    const QString first = olListed(names.mid(0, most));
    return names.size() > most ? olReason::tr("%1 and %2 more").arg(first).arg(names.size() - most) : first;
}

QString olFormatTools::fileIn(const QDir &folder, const QString &name)
{
    return folder.filePath(name.startsWith(QLatin1Char(':')) ? QStringLiteral("./") + name : name);
}

QByteArray olFormatTools::tailOf(QFile &file)
{
    constexpr qint64 enough = 4096;
    file.seek(qMax<qint64>(0, file.size() - enough));
    return file.readAll();
}

olFormatTools::Secluded::Secluded(const olImportJob &job)
    : m_folder(QDir(job.temporaryDirectory).filePath(QStringLiteral("orlo-import-XXXXXX")))
{
    m_file = fileIn(QDir(m_folder.path()), QFileInfo(job.file).fileName());
    m_isReady = m_folder.isValid() && QFile::link(job.file, m_file);
}
