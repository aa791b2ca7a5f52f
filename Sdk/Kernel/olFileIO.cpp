#include "Kernel/olFileIO.h"

#include "State/olHostState.h"
#include "State/olJournal.h"

void olFileIO::enableVerifyGeometry(bool enable)
{
    olJournal::call("olFileIO::enableVerifyGeometry", enable);
    olHostState::the().verifyGeometry = enable;
}

void olFileIO::enableOptimizeGeometry(bool enable)
{
    olJournal::call("olFileIO::enableOptimizeGeometry", enable);
    olHostState::the().optimizeGeometry = enable;
}

void olFileIO::enableOptimizeTransparencies(bool enable)
{
    olJournal::call("olFileIO::enableOptimizeTransparencies", enable);
    olHostState::the().optimizeTransparencies = enable;
}

void olFileIO::setShowFileIOProgress(bool show)
{
    olJournal::call("olFileIO::setShowFileIOProgress", show);
    olHostState::the().fileIOProgressShown = show;
}

void olFileIO::setMaxParallelImportTasks(int count)
{
    olJournal::call("olFileIO::setMaxParallelImportTasks", count);
    olHostState::the().maxParallelImportTasks = count;
}

void olFileIO::setUseLegacyJtLoader(bool use)
{
    olJournal::call("olFileIO::setUseLegacyJtLoader", use);
    olHostState::the().legacyJtLoader = use;
}

void olFileIO::setUseLegacyRhinoLoader(bool use)
{
    olJournal::call("olFileIO::setUseLegacyRhinoLoader", use);
    olHostState::the().legacyRhinoLoader = use;
}

void olFileIO::setStlExportFormat(int format)
{
    olJournal::call("olFileIO::setStlExportFormat", format);
    olHostState::the().stlExportFormat = format;
}
