#include "VideoRendererChoice.h"

#include "MpvLogging.h"

#include <QGuiApplication>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdlib>

namespace {

std::string lowered(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), [](unsigned char c) { return std::tolower(c); });
    return result;
}

std::optional<std::string> probeGLRenderer() {
    QOpenGLContext context;
    if (!context.create()) return std::nullopt;
    QOffscreenSurface surface;
    surface.setFormat(context.format());
    surface.create();
    if (!surface.isValid() || !context.makeCurrent(&surface)) return std::nullopt;
    const auto* name = reinterpret_cast<const char*>(context.functions()->glGetString(GL_RENDERER));
    std::optional<std::string> renderer = name ? std::optional<std::string>(name) : std::nullopt;
    context.doneCurrent();
    return renderer;
}

std::string& preferredRenderer() {
    static std::string word;
    return word;
}

}  // namespace

void setPreferredVideoRenderer(std::string_view word) { preferredRenderer() = lowered(word); }

bool isSoftwareGLRenderer(std::string_view glRenderer) {
    static constexpr auto kSoftware = std::to_array<std::string_view>(
        {"llvmpipe", "softpipe", "software rasterizer", "swrast", "swr", "lavapipe", "microsoft basic render"});
    const std::string name = lowered(glRenderer);
    return std::ranges::any_of(kSoftware,
                               [&](std::string_view marker) { return name.find(marker) != std::string::npos; });
}

VideoRenderer decideVideoRenderer(std::string_view forced, std::string_view platform,
                                  const std::optional<std::string>& glRenderer) {
    if (platform == "offscreen" || platform == "minimal") return VideoRenderer::Software;
    if (forced == "gl") return VideoRenderer::OpenGL;
    if (forced == "sw") return VideoRenderer::Software;
    return glRenderer && !isSoftwareGLRenderer(*glRenderer) ? VideoRenderer::OpenGL : VideoRenderer::Software;
}

VideoRenderer chosenVideoRenderer() {
    static const VideoRenderer choice = [] {
        const char* variable = std::getenv("DASHTRACK_VIDEO_RENDERER");
        // The environment wins over the stored choice.
        const std::string forced = variable && *variable != '\0' ? lowered(variable) : preferredRenderer();
        const std::string platform = QGuiApplication::platformName().toStdString();
        // The probe context costs a few milliseconds; skip it when the answer does not depend on it.
        const bool needProbe = forced != "gl" && forced != "sw" && platform != "offscreen" && platform != "minimal";
        const std::optional<std::string> glRenderer = needProbe ? probeGLRenderer() : std::nullopt;
        const VideoRenderer renderer = decideVideoRenderer(forced, platform, glRenderer);
        qCInfo(lcVideoSurface).noquote() << "video renderer:"
                                         << (renderer == VideoRenderer::OpenGL ? "OpenGL" : "software") << "(platform"
                                         << QString::fromStdString(platform) << ", GL renderer"
                                         << QString::fromStdString(glRenderer.value_or("not probed")) + ")";
        return renderer;
    }();
    return choice;
}
