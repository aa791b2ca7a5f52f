#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olAssimpReader.h"
#include "Exchange/olModelFormat.h"

#include <Message_ProgressRange.hxx>
#include <TDocStd_Document.hxx>

#include <QFile>

using namespace olFormatTools;

olModelFormat ol3mfFormat();

namespace
{

QString check(QFile &file, QStringList &)
{
    return file.read(2) == "PK" ? QString() : olReason::tr("this is no 3MF file");
}

QString read(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress,
             QStringList &remarks)
{
    return olAssimpReader::read(job, {}, document, progress, remarks);
}

} // namespace

olModelFormat ol3mfFormat()
{
    return {"3MF",
            "3MF",
            {QStringLiteral("3mf")},
            olModelFormat::Meshes | olModelFormat::Colors | olModelFormat::Structure | olModelFormat::UnitAndUp,
            check,
            read,
            nullptr};
}
