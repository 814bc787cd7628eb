#pragma once
// "probe": one line per movie saying what the tool finds in it.

#include "ExitStatus.h"
#include "Invocation.h"

#include <iosfwd>

int runProbe(const Invocation& invocation, std::ostream& out, std::ostream& err);
