#pragma once
// Replacing a file's contents as a whole or not at all.

#include <filesystem>
#include <string_view>

// Creates the folder if needed, writes a temporary file beside `file`, flushes it to disk and
// renames it over `file`, so a crash leaves either the old or the new contents. On failure the
// old file is untouched and false is returned.
bool writeFileAtomically(const std::filesystem::path& file, std::string_view contents);
