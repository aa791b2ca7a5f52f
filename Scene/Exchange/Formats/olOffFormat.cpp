#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olAssimpReader.h"
#include "Exchange/olModelFormat.h"

#include <Message_ProgressRange.hxx>
#include <TDocStd_Document.hxx>

#include <QFile>

using namespace olFormatTools;

olModelFormat olOffFormat();

namespace
{

QString check(QFile &file, QStringList &)
{
    const QByteArray head = file.readLine(256);
    return head.contains("OFF") ? QString() : olReason::tr("this is no OFF file");
}

QString read(const olImportJob &job, const olScene::Document &document, const Message_ProgressRange &progress,
             QStringList &remarks)
{
    return olAssimpReader::read(job, {}, document, progress, remarks);
}

} // namespace

olModelFormat olOffFormat()
{
    return {"OFF", "OFF", {QStringLiteral("off")}, olModelFormat::Meshes | olModelFormat::Colors, check, read, nullptr};
}
