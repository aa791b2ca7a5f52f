#include "Kernel/olFileIO.h"

#include "State/olHostCalls.h"

namespace
{

using State = olHostState;

constexpr olHostCalls calls("olFileIO");

} // namespace

void olFileIO::enableVerifyGeometry(bool enable) { calls.set("enableVerifyGeometry", &State::verifyGeometry, enable); }
void olFileIO::enableOptimizeGeometry(bool enable)
{
    calls.set("enableOptimizeGeometry", &State::optimizeGeometry, enable);
}
void olFileIO::enableOptimizeTransparencies(bool enable)
{
    calls.set("enableOptimizeTransparencies", &State::optimizeTransparencies, enable);
}
void olFileIO::setShowFileIOProgress(bool show)
{
    calls.set("setShowFileIOProgress", &State::fileIOProgressShown, show);
}
void olFileIO::setMaxParallelImportTasks(int count)
{
    calls.set("setMaxParallelImportTasks", &State::maxParallelImportTasks, count);
}
void olFileIO::setUseLegacyJtLoader(bool use) { calls.set("setUseLegacyJtLoader", &State::legacyJtLoader, use); }
void olFileIO::setUseLegacyRhinoLoader(bool use)
{
    calls.set("setUseLegacyRhinoLoader", &State::legacyRhinoLoader, use);
}
void olFileIO::setStlExportFormat(int format) { calls.set("setStlExportFormat", &State::stlExportFormat, format); }
