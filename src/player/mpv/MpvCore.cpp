#include "MpvCore.h"

#include "MpvLogging.h"

#include <mpv/client.h>

#include <array>
#include <clocale>
#include <cstdlib>
#include <utility>

namespace {

using Option = std::pair<const char*, const char*>;

// Options set before mpv_initialize. Every one of mpv's own front-end features is off: the
// application draws the controls and handles the keys.
constexpr auto kOptions = std::to_array<Option>({
    {"config", "no"},
    {"terminal", "no"},
    {"input-default-bindings", "no"},
    {"input-vo-keyboard", "no"},
    {"osc", "no"},
    {"osd-level", "0"},
    {"ytdl", "no"},
    {"load-scripts", "no"},
    {"load-stats-overlay", "no"},
    {"load-osd-console", "no"},
    {"load-auto-profiles", "no"},
    {"sub-auto", "no"},
    {"audio-file-auto", "no"},
    {"audio-display", "no"},
    {"resume-playback", "no"},
    // Until a surface attaches a render context; vo=libmpv without one would disable video.
    {"vo", "null"},
    {"idle", "yes"},
    {"pause", "yes"},
    // Rest on the last frame at the end, paused, as the engine's end-of-movie test expects.
    {"keep-open", "yes"},
    // Frames are handed to the surface when they are due, so rendering never has to wait for
    // a frame's display time on the GUI thread.
    {"video-timing-offset", "0"},
    // Decoding on the CPU until an OpenGL surface on a real GPU asks for more (GLVideoSurface):
    // probing GPU decoders and their interop where there are none costs time and prints the
    // drivers' complaints.
    {"hwdec", "no"},
    {"gpu-hwdec-interop", "no"},
});

struct CoreDestroyer {
    void operator()(mpv_handle* handle) const { mpv_terminate_destroy(handle); }
};

bool setOption(mpv_handle* handle, const char* name, const char* value) {
    const int error = mpv_set_option_string(handle, name, value);
    if (error < 0) qCWarning(lcMpv) << "option" << name << "=" << value << "rejected:" << mpv_error_string(error);
    return error >= 0;
}

}  // namespace

MpvCore createMpvCore(const MpvOptions& extra) {
    // libmpv refuses to start unless numbers are formatted the C way, and QApplication has just
    // set the user's locale.
    std::setlocale(LC_NUMERIC, "C");
    MpvCore core(mpv_create(), CoreDestroyer{});
    if (!core) {
        qCWarning(lcMpv) << "mpv_create failed";
        return {};
    }
    for (const auto& [name, value] : kOptions) setOption(core.get(), name, value);
    if (const char* audioOutput = std::getenv("DASHTRACK_AUDIO_OUTPUT"); audioOutput && *audioOutput)
        setOption(core.get(), "ao", audioOutput);
    for (const auto& [name, value] : extra) setOption(core.get(), name.c_str(), value.c_str());
    if (const int error = mpv_initialize(core.get()); error < 0) {
        qCWarning(lcMpv) << "mpv_initialize failed:" << mpv_error_string(error);
        return {};
    }
    mpv_request_log_messages(core.get(), "warn");
    return core;
}
