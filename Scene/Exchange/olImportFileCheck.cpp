#include "Exchange/olImportFileCheck.h"

#include "Exchange/Formats/olGltfFileCheck.h"
#include "Exchange/Formats/olObjFileCheck.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <unistd.h>

namespace
{

// A reader needs several times the size of the file.
constexpr qint64 memoryPerFile = 4;

constexpr int binaryStlHead = 84;
constexpr int binaryStlTriangle = 50;

QString reason(const char *text) { return QCoreApplication::translate("olImport", text); }
QString cutOff() { return reason("the file is cut off or damaged"); }

qint64 memory() { return qint64(sysconf(_SC_PHYS_PAGES)) * sysconf(_SC_PAGESIZE); }

QString gigabytes(qint64 bytes) { return QString::number(double(bytes) / (1 << 30), 'f', 1); }

QByteArray tailOf(QFile &file)
{
    constexpr qint64 enough = 4096;
    file.seek(qMax<qint64>(0, file.size() - enough));
    return file.readAll();
}

QString stepFault(QFile &file)
{
    if (!file.read(4096).contains("ISO-10303-21"))
        return reason("this is no STEP file");
    return tailOf(file).contains("END-ISO-10303-21") ? QString() : cutOff();
}

/// Lines are 80 characters of which the 73rd names the section; the last section is T.
QString igesFault(QFile &file)
{
    const QByteArray first = file.readLine(256);
    if (first.size() < 73 || (first.at(72) != 'S' && first.at(72) != 'C' && first.at(72) != 'B'))
        return reason("this is no IGES file");
    QByteArray tail = tailOf(file);
    while (tail.endsWith('\n') || tail.endsWith('\r'))
        tail.chop(1);
    const QByteArray last = tail.mid(tail.lastIndexOf('\n') + 1);
    return last.size() >= 73 && last.at(72) == 'T' ? QString() : cutOff();
}

QString stlFault(QFile &file)
{
    const QByteArray head = file.read(binaryStlHead);
    if (head.size() == binaryStlHead) {
        const auto triangles = qFromLittleEndian<quint32>(head.constData() + 80);
        if (file.size() == binaryStlHead + qint64(triangles) * binaryStlTriangle)
            return {};
    }
    // Some programs begin binary files with the word that begins text.
    const QByteArray start = head + file.read(512);
    const bool isText = start.trimmed().startsWith("solid") && start.contains("facet");
    if (!isText)
        return head.size() < binaryStlHead ? reason("this is no STL file") : cutOff();
    return tailOf(file).contains("endsolid") ? QString() : cutOff();
}

QString vrmlFault(QFile &file)
{
    const QByteArray head = file.read(64);
    if (head.startsWith("#VRML V1"))
        return reason("it is of version 1 of VRML; only version 2 can be read");
    return head.startsWith("#VRML V2") ? QString() : reason("this is no VRML file");
}

} // namespace

QString olImportFileCheck(const QString &name, const olModelFormat &format, QStringList &remarks)
{
    const QFileInfo info(name);
    if (!info.exists())
        return reason("there is no such file");
    if (!info.isFile())
        return reason("this is no file");
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    if (file.size() == 0)
        return reason("the file is empty");
    if (file.size() > memory() / memoryPerFile)
        return reason("the file is too large for this machine: %1 GB with %2 GB of memory")
            .arg(gigabytes(file.size()), gigabytes(memory()));
    switch (format.id) {
    case olModelFormat::Step:
        return stepFault(file);
    case olModelFormat::Iges:
        return igesFault(file);
    case olModelFormat::Stl:
        return stlFault(file);
    case olModelFormat::Vrml:
        return vrmlFault(file);
    case olModelFormat::Gltf:
        return olGltfFault(file);
    case olModelFormat::Obj:
        return olObjFault(file, remarks);
    }
    return {};
}
