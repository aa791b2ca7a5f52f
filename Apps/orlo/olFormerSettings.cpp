#include "olFormerSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

void olTakeFormerSettingsOver()
{
    const QString now = QSettings().fileName();
    const QString former = QSettings(QStringLiteral("ORLO"), QStringLiteral("orlo")).fileName();
    if (QFile::exists(now) || !QFile::exists(former))
        return;
    QDir().mkpath(QFileInfo(now).path());
    // Where it cannot be moved it stays, and is found again at the next start.
    if (QFile::rename(former, now))
        QDir().rmdir(QFileInfo(former).path());
}
