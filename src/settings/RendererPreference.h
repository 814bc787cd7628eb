#pragma once
// Which video renderer the user asked for; the program decides it once, at start.

#include <optional>
#include <string>
#include <string_view>

enum class RendererPreference { Automatic, OpenGL, Software };

// The stored words are the ones DASHTRACK_VIDEO_RENDERER takes ("gl", "sw"), plus "auto".
inline std::string_view rendererPreferenceWord(RendererPreference preference) {
    switch (preference) {
        case RendererPreference::OpenGL: return "gl";
        case RendererPreference::Software: return "sw";
        case RendererPreference::Automatic: break;
    }
    return "auto";
}

inline std::optional<RendererPreference> parseRendererPreference(std::string_view word) {
    if (word == "auto") return RendererPreference::Automatic;
    if (word == "gl") return RendererPreference::OpenGL;
    if (word == "sw") return RendererPreference::Software;
    return std::nullopt;
}
