#include "MovieProbeLibrary.h"

#include <dlfcn.h>

#include <array>
#include <system_error>

#ifndef DASHTRACK_BIN_TO_MODULEDIR
#error "the build must define where the probe module is installed"
#endif

namespace {

std::filesystem::path executableFolder() {
    std::error_code error;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::path() : self.parent_path();
}

}  // namespace

std::unique_ptr<MovieProbeLibrary> MovieProbeLibrary::load(std::string& error) {
    const std::filesystem::path folder = executableFolder();
    if (folder.empty()) {
        error = "cannot find the folder of the program";
        return nullptr;
    }
    // Build tree: beside the program. Install tree: the program's private library folder.
    const std::array candidates = {folder / kModuleName,
                                   (folder / DASHTRACK_BIN_TO_MODULEDIR / kModuleName).lexically_normal()};
    error = std::string("cannot find ") + kModuleName;
    for (const auto& candidate : candidates) {
        std::error_code ignored;
        if (!std::filesystem::exists(candidate, ignored)) continue;
        void* handle = ::dlopen(candidate.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (handle == nullptr) {
            const char* reason = ::dlerror();
            error = reason ? reason : "cannot load " + candidate.string();
            continue;
        }
        auto function = reinterpret_cast<HasVideoTrack>(::dlsym(handle, "dashtrack_has_video_track"));
        if (function == nullptr) {
            error = candidate.string() + ": no movie test in the module";
            ::dlclose(handle);
            continue;
        }
        return std::make_unique<MovieProbeLibrary>(Key{}, handle, function);
    }
    return nullptr;
}

MovieProbeLibrary::~MovieProbeLibrary() { ::dlclose(handle_); }

bool MovieProbeLibrary::hasVideoTrack(const std::filesystem::path& file) const {
    return hasVideoTrack_(file.c_str()) != 0;
}
