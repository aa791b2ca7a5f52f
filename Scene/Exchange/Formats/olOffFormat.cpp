#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olAssimpReader.h"
#include "Exchange/olModelFormat.h"

#include <QFile>

olModelFormat olOffFormat();

namespace
{

olResult<> check(QFile &file, QStringList &)
{
    const QByteArray head = file.readLine(256);
    return head.contains("OFF") ? olResult<>() : olFailure{olReason::tr("this is no OFF file")};
}

} // namespace

olModelFormat olOffFormat()
{
    return {"OFF",
            "OFF",
            {QStringLiteral("off")},
            olModelFormat::Meshes | olModelFormat::Colors,
            check,
            olAssimpReader::read,
            nullptr};
}
