#pragma once

#include <QtGlobal>

/// Marks what the host's library exports: exported while the library itself is built, imported everywhere else.
#if defined(ORLO_SDK_BUILD)
#define ORLO_SDK_EXPORT Q_DECL_EXPORT
#else
#define ORLO_SDK_EXPORT Q_DECL_IMPORT
#endif
