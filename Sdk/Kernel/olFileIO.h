#pragma once

#include "Utilities/olExport.h"

/// What every import and export does, whatever the format.
class ORLO_SDK_EXPORT olFileIO
{
public:
    /// Whether geometry is checked, and improved, when it is loaded.
    static void enableVerifyGeometry(bool enable);
    static void enableOptimizeGeometry(bool enable);
    static void enableOptimizeTransparencies(bool enable);

    static void setShowFileIOProgress(bool show);

    /// How many files are read at once; 0 and less leave the number to the host.
    static void setMaxParallelImportTasks(int count);

    /// Which of two loaders reads the format: the legacy one, or the current one.
    static void setUseLegacyJtLoader(bool use);
    static void setUseLegacyRhinoLoader(bool use);

    /// 0 writes STL as text, 1 as binary.
    static void setStlExportFormat(int format);
};
