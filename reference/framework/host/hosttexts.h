#pragma once

#include <pagehost/objectplugin.h>

/// The texts of the library and of this host.
namespace hosttexts {

pagehost::TextTable english();
pagehost::TextTable german();

} // namespace hosttexts
