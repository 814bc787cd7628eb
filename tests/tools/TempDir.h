#pragma once
// A fresh directory for one test, removed with everything in it afterwards (also used by the cli and settings tests).

#include <cstdlib>
#include <filesystem>
#include <string>

class TempDir {
public:
    TempDir() {
        std::string pattern = (std::filesystem::temp_directory_path() / "dashtrack-test-XXXXXX").string();
        if (mkdtemp(pattern.data()) != nullptr) path_ = pattern;
    }
    ~TempDir() {
        std::error_code ignored;
        if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};
