#ifndef ENGINEEXPORT_H
#define ENGINEEXPORT_H

#include <QtGlobal>

// The engine is built with hidden visibility; only what carries this mark leaves the library.
#if defined(ORVANTA_BUILDING_ENGINE)
#define ORVANTA_ENGINE_EXPORT Q_DECL_EXPORT
#else
#define ORVANTA_ENGINE_EXPORT Q_DECL_IMPORT
#endif

#endif
