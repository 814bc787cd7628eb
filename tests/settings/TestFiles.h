#pragma once
// Small file helpers for the settings tests: a fresh folder per test and whole-file reads and writes.

#include "TempDir.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

inline void writeFile(const std::filesystem::path& path, const std::string& contents) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << contents;
}

// Empty for anything but a regular file.
inline std::string readFile(const std::filesystem::path& path) {
    if (!std::filesystem::is_regular_file(path)) return {};
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// An XML property list whose root dictionary holds `entries`.
inline std::string plistDictionary(const std::string& entries) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n" + entries +
           "</dict>\n</plist>\n";
}
