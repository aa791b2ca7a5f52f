#include "Exchange/Formats/olFormatTools.h"
#include "Exchange/olAssimpReader.h"
#include "Exchange/olModelFormat.h"

#include <QFile>

olModelFormat ol3mfFormat();

namespace
{

olResult<> check(QFile &file, QStringList &)
{
    return file.read(2) == "PK" ? olResult<>() : olFailure{olReason::tr("this is no 3MF file")};
}

} // namespace

olModelFormat ol3mfFormat()
{
    return {"3MF",
            "3MF",
            {QStringLiteral("3mf")},
            olModelFormat::Meshes | olModelFormat::Colors | olModelFormat::Structure | olModelFormat::UnitAndUp,
            check,
            olAssimpReader::read,
            nullptr};
}
