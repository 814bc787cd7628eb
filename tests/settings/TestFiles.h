#pragma once
// Small file helpers for the settings tests: a fresh folder per test and whole-file reads and writes.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

class TemporaryDirectory {
public:
    TemporaryDirectory() {
        std::string pattern = (std::filesystem::temp_directory_path() / "dashtrack-settings-XXXXXX").string();
        path_ = ::mkdtemp(pattern.data());
    }
    ~TemporaryDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const std::filesystem::path& name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

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
