#pragma once

#include <checklist/filereading.h>

namespace shapetool {

using namespace checklist;

/// Prints findings to the standard output: a line each, or one JSON array.
void print(const Faults &faults, bool asJson);

} // namespace shapetool
