#include "ResourceDirectory.h"

#include <system_error>

#if !defined(DASHTRACK_BIN_TO_RESOURCEDIR) || !defined(DASHTRACK_FULL_RESOURCEDIR)
#error "the build must define where the resources are installed"
#endif

namespace {

bool isDirectory(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::is_directory(path, ignored);
}

bool isFile(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

}  // namespace

std::optional<std::filesystem::path> resourceDirectoryOf(const std::filesystem::path& executable) {
    const std::filesystem::path folder = executable.parent_path();
    if (folder.empty()) return std::nullopt;
    auto installed = (folder / DASHTRACK_BIN_TO_RESOURCEDIR).lexically_normal();
    if (isDirectory(installed)) return installed;
    // Found by walking up rather than compiled in, so that no build-tree path ends up in a package.
    for (auto dir = folder; dir.has_relative_path(); dir = dir.parent_path()) {
        if (isFile(dir / "CMakeCache.txt") && isDirectory(dir / "resources")) return dir / "resources";
    }
    return std::nullopt;
}

std::filesystem::path resourceDirectory() {
    std::error_code error;
    const auto executable = std::filesystem::read_symlink("/proc/self/exe", error);
    if (!error) {
        if (auto found = resourceDirectoryOf(executable)) return *found;
    }
    return DASHTRACK_FULL_RESOURCEDIR;
}
