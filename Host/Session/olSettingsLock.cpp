#include "Session/olSettingsLock.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLockFile>
#include <QSettings>
#include <QString>

QString olRemoveAbandonedLock()
{
    const QString settings = QSettings().fileName();
    const QString name = settings + QStringLiteral(".lock");
    QLockFile lock(name);
    if (lock.removeStaleLockFile() || !QFileInfo::exists(name))
        return {};
    qint64 process = 0;
    QString computer;
    QString program;
    lock.getLockInfo(&process, &computer, &program);
    return QCoreApplication::translate("olSettingsLock",
                                       "The settings file %1 is busy: %2 (process %3) holds its lock. What is to be "
                                       "kept there waits for it.")
        .arg(settings, program, QString::number(process));
}
