#pragma once
// Where the application's shipped resources (settings file, fonts, images) live.

#include <filesystem>

// `<executable's folder>/../share/dashtrack` when that exists (an installed copy), else the
// resources folder of the build tree the program was built in.
std::filesystem::path resourceDirectory();
