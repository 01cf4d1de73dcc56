#pragma once

#include <pagehost/objectplugin.h>

/// Texts of the library and of this host.
namespace hosttexts {

pagehost::TextTable english();
pagehost::TextTable german();

} // namespace hosttexts
