#include "Exchange/olModelFormat.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace
{

QString translated(const char *text) { return QCoreApplication::translate("olModelFormat", text); }

QString allSuffixes(const QString &before, const QString &between)
{
    QStringList suffixes;
    for (const olModelFormat &format : olModelFormat::all()) {
        for (const QString &suffix : format.suffixes)
            suffixes << before + suffix;
    }
    return suffixes.join(between);
}

QString suffixText(const QString &file)
{
    const QString suffix = QFileInfo(file).suffix();
    return suffix.isEmpty() ? translated("files without a suffix") : translated(".%1 files").arg(suffix);
}

} // namespace

const std::vector<olModelFormat> &olModelFormat::all()
{
    static const std::vector<olModelFormat> formats{
        {Step, "STEP", "STEP", {QStringLiteral("step"), QStringLiteral("stp")}},
        {Iges, "IGES", "IGES", {QStringLiteral("iges"), QStringLiteral("igs")}},
        {Stl, "STL", "STL", {QStringLiteral("stl")}},
        {Vrml, "VRML", "WRL", {QStringLiteral("wrl"), QStringLiteral("vrml")}},
        {Obj, "OBJ", "OBJ", {QStringLiteral("obj")}},
        {Gltf, "glTF", "GLTF", {QStringLiteral("gltf"), QStringLiteral("glb")}},
    };
    return formats;
}

const olModelFormat *olModelFormat::ofFile(const QString &file)
{
    const QString suffix = QFileInfo(file).suffix().toLower();
    for (const olModelFormat &format : all()) {
        if (format.suffixes.contains(suffix))
            return &format;
    }
    return nullptr;
}

QString olModelFormat::noReader(const QString &file)
{
    return translated("Cannot read %1: there is no reader for %2. These can be read: %3.")
        .arg(file, suffixText(file), allSuffixes({}, QStringLiteral(", ")));
}

QString olModelFormat::noWriter(const QString &file)
{
    return translated("Cannot write %1: there is no writer for %2. These can be written: %3.")
        .arg(file, suffixText(file), allSuffixes({}, QStringLiteral(", ")));
}

QString olModelFormat::filter()
{
    QStringList filters{translated("Models (%1)").arg(allSuffixes(QStringLiteral("*."), QStringLiteral(" ")))};
    for (const olModelFormat &format : all()) {
        filters
            << QStringLiteral("%1 (*.%2)").arg(QLatin1String(format.name), format.suffixes.join(QStringLiteral(" *.")));
    }
    return filters.join(QStringLiteral(";;"));
}
