#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olAssimpReader.h"
#include "Exchange/olModelFormat.h"

#include <Message_ProgressRange.hxx>
#include <TDocStd_Document.hxx>

#include <QFile>

using namespace olFormatTools;

olModelFormat olPlyFormat();

namespace
{

QString check(QFile &file, QStringList &)
{
    return file.read(3) == "ply" ? QString() : olReason::tr("this is no PLY file");
}

QString read(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress,
             QStringList &remarks)
{
    return olAssimpReader::read(job, {}, document, progress, remarks);
}

} // namespace

olModelFormat olPlyFormat()
{
    return {"PLY", "PLY", {QStringLiteral("ply")}, olModelFormat::Meshes | olModelFormat::Colors, check, read, nullptr};
}
