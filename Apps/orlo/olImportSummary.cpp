#include "olImportSummary.h"

#include "Exchange/olModelFormat.h"
#include "State/olListed.h"

#include <QCoreApplication>
#include <QDir>

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olImportSummary)
};

QString row(const QString &name, const QString &value)
{
    return QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td>%2</td></tr>").arg(name, value.toHtmlEscaped());
}

QString kind(const QString &name, bool isWanted, bool isInvisibleWanted)
{
    const QString which = !isWanted           ? Words::tr("%1: none")
                          : isInvisibleWanted ? Words::tr("%1: all")
                                              : Words::tr("%1: visible");
    return which.arg(name);
}

QString list(const QVector<QPair<bool, QString>> &items)
{
    QStringList texts;
    for (const auto &[isOn, text] : items) {
        if (isOn)
            texts << text;
    }
    return texts.isEmpty() ? Words::tr("nothing") : olListed(texts);
}

} // namespace

QString olImportSummary(const olImportJob &job)
{
    const olModelFormat *format = olModelFormat::ofFile(job.file);
    if (!format)
        return olModelFormat::noReader(job.file).toHtmlEscaped();
    const olImportRecord &options = job.options;
    QString rows = row(Words::tr("Format"), QLatin1String(format->name));
    const QStringList kinds{kind(Words::tr("surfaces"), options.importSurfaces, options.importInvisibleSurfaces),
                            kind(Words::tr("curves"), options.importCurves, options.importInvisibleCurves),
                            kind(Words::tr("meshes"), options.importMeshes, options.importInvisibleMeshes)};
    // Where there are surfaces, it is asked which kinds are to be read and what is to be tidied up.
    if (!format->holds(olModelFormat::Surfaces)) {
        rows += row(Words::tr("Kinds"), olListed(kinds));
        rows += row(Words::tr("Tidied up"), list({{options.mergeGeometries, Words::tr("meshes merged")},
                                                  {options.removeEmptyGroups, Words::tr("empty groups removed")},
                                                  {options.unifySurfaceNormals, Words::tr("normals unified")}}));
    }
    rows += row(Words::tr("Checks"),
                list({{job.verify, Words::tr("geometry verified")}, {job.optimize, Words::tr("faults repaired")}}));
    rows += row(Words::tr("Textures"),
                job.textureDirectories.empty()
                    ? Words::tr("beside the model")
                    : Words::tr("beside the model, and in %1 directories").arg(job.textureDirectories.size()));
    return QStringLiteral("<table>%1</table>").arg(rows);
}
