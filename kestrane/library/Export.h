#ifndef KESTRANE_LIBRARY_EXPORT_H
#define KESTRANE_LIBRARY_EXPORT_H

#include <QtGlobal>

/// Marks what the shared library Kestrane offers; all else stays hidden inside it.
#if defined(KESTRANE_LIBRARY)
#define KESTRANE_EXPORT Q_DECL_EXPORT
#else
#define KESTRANE_EXPORT Q_DECL_IMPORT
#endif

#endif
