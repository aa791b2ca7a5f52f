#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olAssimpReader.h"
#include "Exchange/olModelFormat.h"

#include <QFile>

olModelFormat olPlyFormat();

namespace
{

olResult<> check(QFile &file, QStringList &)
{
    return file.read(3) == "ply" ? olResult<>() : olFailure{olReason::tr("this is no PLY file")};
}

} // namespace

olModelFormat olPlyFormat()
{
    return {"PLY",
            "PLY",
            {QStringLiteral("ply")},
            olModelFormat::Meshes | olModelFormat::Colors,
            check,
            olAssimpReader::read,
            nullptr};
}
