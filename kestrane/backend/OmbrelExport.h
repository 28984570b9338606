#ifndef KESTRANE_BACKEND_OMBRELEXPORT_H
#define KESTRANE_BACKEND_OMBRELEXPORT_H

#include <QtGlobal>

/// Marks what the shared library Ombrel offers; all else stays hidden inside it.
#if defined(OMBREL_LIBRARY)
#define OMBREL_EXPORT Q_DECL_EXPORT
#else
#define OMBREL_EXPORT Q_DECL_IMPORT
#endif

#endif
