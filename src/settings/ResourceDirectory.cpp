#include "ResourceDirectory.h"

#include <system_error>

std::filesystem::path resourceDirectory() {
    std::error_code error;
    const auto executable = std::filesystem::read_symlink("/proc/self/exe", error);
    if (!error) {
        auto installed = (executable.parent_path() / ".." / "share" / "dashtrack").lexically_normal();
        if (std::filesystem::is_directory(installed, error)) return installed;
    }
    return DASHTRACK_RESOURCE_BUILD_DIR;
}
