#include "olImportSummary.h"

#include "Exchange/olModelFormat.h"

#include <QCoreApplication>
#include <QDir>

namespace
{

QString translated(const char *text) { return QCoreApplication::translate("olImportSummary", text); }

QString row(const QString &name, const QString &value)
{
    return QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>").arg(name, value.toHtmlEscaped());
}

QString kind(const char *name, bool isWanted, bool isInvisibleWanted)
{
    const char *which = !isWanted ? "%1: none" : isInvisibleWanted ? "%1: all" : "%1: visible";
    return translated(which).arg(translated(name));
}

QString list(const QVector<QPair<bool, const char *>> &items)
{
    QStringList texts;
    for (const auto &[isOn, text] : items) {
        if (isOn)
            texts << translated(text);
    }
    return texts.isEmpty() ? translated("nothing") : texts.join(QStringLiteral(", "));
}

QString fineness(const olImportRecord &options)
{
    if (!options.tessellation)
        return translated("the usual one");
    return translated("chords within %1 mm, normals within %2\u00b0")
        .arg(options.chordDeviation)
        .arg(options.normalTolerance);
}

} // namespace

QString olImportSummary(const olImportJob &job)
{
    const olModelFormat *format = olModelFormat::ofFile(job.file);
    if (!format)
        return olModelFormat::noReader(job.file).toHtmlEscaped();
    const olImportRecord &options = job.options;
    QString rows = row(translated("Format"), QLatin1String(format->name));
    if (format->holds(olModelFormat::Surfaces)) {
        rows += row(translated("Fineness"), fineness(options));
        rows +=
            row(translated("Stitching"),
                options.stitching ? translated("gaps up to %1 mm").arg(options.stitchingTolerance) : translated("off"));
    }
    const QStringList kinds{kind("surfaces", options.importSurfaces, options.importInvisibleSurfaces),
                            kind("curves", options.importCurves, options.importInvisibleCurves),
                            kind("meshes", options.importMeshes, options.importInvisibleMeshes)};
    rows += row(translated("Kinds"), kinds.join(QStringLiteral(", ")));
    rows += row(translated("Tidied up"), list({{options.mergeGeometries, "meshes merged"},
                                               {options.removeEmptyGroups, "empty groups removed"},
                                               {options.unifySurfaceNormals, "normals unified"}}));
    rows += row(translated("Checks"), list({{job.verify, "geometry verified"}, {job.optimize, "faults repaired"}}));
    rows += row(translated("Textures"),
                job.textureDirectories.empty()
                    ? translated("beside the model")
                    : translated("beside the model, and in %1 directories").arg(job.textureDirectories.size()));
    return QStringLiteral("<table>%1</table>").arg(rows);
}
