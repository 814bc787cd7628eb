#pragma once
// "extract": the GPS tracks of movies, in one document of the chosen format.

#include "ExitStatus.h"
#include "Invocation.h"

#include <iosfwd>

int runExtract(const Invocation& invocation, std::ostream& out, std::ostream& err);
