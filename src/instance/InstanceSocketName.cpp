#include "InstanceSocketName.h"

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

// FNV-1a: stable from run to run and build to build, unlike std::hash; no secret to keep.
uint64_t digest(const std::string& text) {
    uint64_t hash = 14695981039346656037ull;
    for (const unsigned char c : text) {
        hash ^= c;
        hash *= 1099511628211ull;
    }
    return hash;
}

std::string inFolder(const std::string& folder, const std::string& name) {
    if (folder.empty()) return "/tmp/" + name;
    return folder.back() == '/' ? folder + name : folder + "/" + name;
}

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

}  // namespace

std::string instanceSocketName(const InstanceSocketPlace& place) {
    if (!place.override.empty())
        return place.override.front() == '/' ? place.override : inFolder(place.tempDir, place.override);
    char name[64];
    std::snprintf(name, sizeof name, "dashtrack-%u-%016llx", place.userId,
                  static_cast<unsigned long long>(
                      digest(place.runtimeDir + '\n' + place.display + '\n' + place.waylandDisplay)));
    return inFolder(place.runtimeDir.empty() ? place.tempDir : place.runtimeDir, name);
}

InstanceSocketPlace currentInstanceSocketPlace() {
    return {
        .userId = static_cast<unsigned>(::getuid()),
        .runtimeDir = environment("XDG_RUNTIME_DIR"),
        .display = environment("DISPLAY"),
        .waylandDisplay = environment("WAYLAND_DISPLAY"),
        .override = environment("DASHTRACK_INSTANCE_SOCKET"),
        .tempDir = environment("TMPDIR"),
    };
}
