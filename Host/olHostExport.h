#pragma once

#include <QtGlobal>

/// Marks what the embedded host's library exports, for the programs and the tests.
#if defined(ORLO_HOST_BUILD)
#define ORLO_HOST_EXPORT Q_DECL_EXPORT
#else
#define ORLO_HOST_EXPORT Q_DECL_IMPORT
#endif
