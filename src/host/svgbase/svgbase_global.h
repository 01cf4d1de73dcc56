#pragma once

#include <QtCore/qglobal.h>

#if defined(SVGBASE_STATIC)
#define SVGBASE_EXPORT
#elif defined(SVGBASE_LIBRARY)
#define SVGBASE_EXPORT Q_DECL_EXPORT
#else
#define SVGBASE_EXPORT Q_DECL_IMPORT
#endif
