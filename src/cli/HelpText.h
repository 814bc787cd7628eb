#pragma once
// The text of --help, built from the tables of commands, options and formats.

#include <string>

std::string helpText();
