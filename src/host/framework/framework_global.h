#pragma once

#include <QtCore/qglobal.h>

#if defined(FRAMEWORK_STATIC)
#define FRAMEWORK_EXPORT
#elif defined(FRAMEWORK_LIBRARY)
#define FRAMEWORK_EXPORT Q_DECL_EXPORT
#else
#define FRAMEWORK_EXPORT Q_DECL_IMPORT
#endif
