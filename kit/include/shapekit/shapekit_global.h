#pragma once

#include <QtCore/qglobal.h>

#if defined(SHAPEKIT_LIBRARY)
#define SHAPEKIT_EXPORT Q_DECL_EXPORT
#else
#define SHAPEKIT_EXPORT Q_DECL_IMPORT
#endif
