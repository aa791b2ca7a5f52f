#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olAssimpReader.h"
#include "Exchange/olModelFormat.h"

#include <Message_ProgressRange.hxx>
#include <TDocStd_Document.hxx>

#include <QFile>

olModelFormat olColladaFormat();

namespace
{

olResult<> check(QFile &file, QStringList &)
{
    return file.read(1 << 16).contains("<COLLADA") ? olResult<>() : olFailure{olReason::tr("this is no COLLADA file")};
}

olResult<> read(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress,
                QStringList &remarks)
{
    // The library makes metres of all units, and turns what stands otherwise.
    olAssimpReader::Conventions conventions;
    conventions.unit = 1000;
    conventions.isYUp = true;
    return olAssimpReader::read(job, conventions, document, progress, remarks);
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
