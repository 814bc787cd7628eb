#pragma once
// The message a later start of the program sends the running one: the absolute paths it was
// given, as their bytes (a Linux file name need not be UTF-8). Framed with its own length so the
// receiver knows when it has all of it; every length read back is checked against the bytes there.
// Plain C++: the launcher that sends it links no Qt.
//
//   "DTH1"  body length (u32, big-endian)  path count (u32)  { path length (u32)  path bytes }...

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

class HandOverMessage {
public:
    // Larger messages are refused whole: no hand-over names that many clips.
    static constexpr uint32_t kMaxBodyBytes = 4 * 1024 * 1024;
    static constexpr uint32_t kMaxPathBytes = 4096;

    enum class Status { Incomplete, Complete, Invalid };
    struct Decoded {
        Status status = Status::Incomplete;
        std::vector<std::filesystem::path> paths;  // only when Complete
    };

    // Paths that are not absolute, too long or hold a NUL byte are left out.
    static std::string encode(const std::vector<std::filesystem::path>& paths);
    // Incomplete while `bytes` may still grow into a message; Invalid once they cannot, or when a
    // path is not absolute.
    static Decoded decode(std::string_view bytes);
};
