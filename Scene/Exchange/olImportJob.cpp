#include "Exchange/olImportJob.h"

#include "Exchange/olModelFormat.h"

#include "Kernel/olTexSearch.h"
#include "State/olHostState.h"

#include <QDir>
#include <QFileInfo>

olImportJob olImportJob::of(const QString &file)
{
    const olHostState &host = olHostState::the();
    olImportJob job;
    job.file = QFileInfo(file).absoluteFilePath();
    if (const olModelFormat *format = olModelFormat::ofFile(file)) {
        // Formats without a module of their own are read as nobody had set anything.
        const olImportRecord *written = host.importRecord(format->optionsType);
        if (written)
            job.options = *written;
    }
    job.verify = host.verifyGeometry;
    job.optimize = host.optimizeGeometry;
    job.centerInOrigin = host.importCenteredInOrigin;
    job.putOnGround = host.importPutOnGround;
    job.temporaryDirectory = qEnvironmentVariable("ORLO_FILEIO_TMP_DIR");
    if (job.temporaryDirectory.isEmpty() || !QFileInfo(job.temporaryDirectory).isWritable())
        job.temporaryDirectory = QDir::tempPath();
    job.textureDirectories = olTexSearch::directories();
    return job;
}
