#include "Exchange/olModelFormat.h"

#include "State/olListed.h"

#include <QCoreApplication>
#include <QFileInfo>

// All formats, in the order in which they are offered; each is a function in the file of its name under Formats/.
// clang-format off
#define OL_FORMATS(format) \
    format(olStepFormat) \
    format(olIgesFormat) \
    format(olStlFormat) \
    format(olVrmlFormat) \
    format(olObjFormat) \
    format(olGltfFormat) \
    format(olPlyFormat) \
    format(ol3mfFormat) \
    format(olColladaFormat) \
    format(olOffFormat)
// clang-format on

#define OL_FORMAT(format) olModelFormat format();
OL_FORMATS(OL_FORMAT)
#undef OL_FORMAT

namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(olModelFormat)
};

/// Of all formats that can be read, or of those that can be written.
QStringList allSuffixes(const QString &before, bool isWritten)
{
    QStringList suffixes;
    for (const olModelFormat &format : olModelFormat::all()) {
        if (isWritten && !format.write)
            continue;
        for (const QString &suffix : format.suffixes)
            suffixes << before + suffix;
    }
    return suffixes;
}

QString suffixText(const QString &file)
{
    const QString suffix = QFileInfo(file).suffix();
    return suffix.isEmpty() ? Words::tr("files without a suffix") : Words::tr(".%1 files").arg(suffix);
}

} // namespace

const std::vector<olModelFormat> &olModelFormat::all()
{
#define OL_FORMAT(format) format(),
    static const std::vector<olModelFormat> formats{OL_FORMATS(OL_FORMAT)};
#undef OL_FORMAT
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
    return Words::tr("Cannot read %1: there is no reader for %2. These can be read: %3.")
        .arg(file, suffixText(file), olListed(allSuffixes({}, false)));
}

QString olModelFormat::noWriter(const QString &file)
{
    return Words::tr("Cannot write %1: there is no writer for %2. These can be written: %3.")
        .arg(file, suffixText(file), olListed(allSuffixes({}, true)));
}

QString olModelFormat::filter(bool isWritten)
{
    QStringList filters{
        Words::tr("Models (%1)").arg(allSuffixes(QStringLiteral("*."), isWritten).join(QLatin1Char(' ')))};
    for (const olModelFormat &format : all()) {
        if (!isWritten || format.write)
            filters << QStringLiteral("%1 (*.%2)")
                           .arg(QLatin1String(format.name), format.suffixes.join(QStringLiteral(" *.")));
    }
    return filters.join(QStringLiteral(";;"));
}
