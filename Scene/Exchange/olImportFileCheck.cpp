#include "Exchange/olImportFileCheck.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <limits>

#include <unistd.h>

namespace
{

// A reader needs several times the size of the file.
constexpr qint64 memoryPerFile = 4;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olReason)
};

qint64 memory() { return qint64(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE); }

QString gigabytes(qint64 bytes) { return QString::number(double(bytes) / (1 << 30), 'f', 1); }

} // namespace

olResult<> olImportFileCheck(const QString &name, const olModelFormat &format, QStringList &remarks)
{
    const QFileInfo info(name);
    if (!info.exists())
        return olFailure{Words::tr("there is no such file")};
    if (!info.isFile())
        return olFailure{Words::tr("this is no file")};
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return olFailure{file.errorString()};
    if (file.size() == 0)
        return olFailure{Words::tr("the file is empty")};
    if (file.size() > memory() / memoryPerFile)
        return olFailure{Words::tr("the file is too large for this machine: %1 GB with %2 GB of memory")
                             .arg(gigabytes(file.size()), gigabytes(memory()))};
    if (file.size() > std::numeric_limits<int>::max())
        return olFailure{Words::tr("the file is too large: %1 GB, of which 2 can be read").arg(gigabytes(file.size()))};
    return format.check(file, remarks);
}
