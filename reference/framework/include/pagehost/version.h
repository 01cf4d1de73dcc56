#pragma once

/// The version of the library, which plug-ins carry (PAGEHOST_OBJECTPLUGIN_IID).
#define PAGEHOST_VERSION "1.0.0"
