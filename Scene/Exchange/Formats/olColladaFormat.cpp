#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olAssimpReader.h"
#include "Exchange/olModelFormat.h"

#include <Message_ProgressRange.hxx>
#include <TDocStd_Document.hxx>

#include <QFile>

using namespace olFormatTools;

olModelFormat olColladaFormat();

namespace
{

QString check(QFile &file, QStringList &)
{
    return file.read(1 << 16).contains("<COLLADA") ? QString() : olReason::tr("this is no COLLADA file");
}

QString read(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress,
             QStringList &remarks)
{
    // The library makes metres of all units, and turns what stands otherwise.
    olAssimpReader::Manner manner;
    manner.unit = 1000;
    manner.isYUp = true;
    return olAssimpReader::read(job, manner, document, progress, remarks);
}

} // namespace

olModelFormat olColladaFormat()
{
    return {"COLLADA",
            "COLLADA",
            {QStringLiteral("dae")},
            olModelFormat::Meshes | olModelFormat::Colors | olModelFormat::Opacity | olModelFormat::Textures |
                olModelFormat::Structure | olModelFormat::UnitAndUp,
            check,
            read,
            nullptr};
}
