// Which renderer a machine gets.

#include "VideoRendererChoice.h"

#include <gtest/gtest.h>

namespace {

TEST(VideoRendererChoiceTest, HardwareOpenGLOnlyWhereItIsReal) {
    constexpr auto GL = VideoRenderer::OpenGL;
    constexpr auto SW = VideoRenderer::Software;
    struct Case {
        const char* forced;
        const char* platform;
        std::optional<std::string> glRenderer;
        VideoRenderer expected;
    };
    const Case cases[] = {
        {"", "wayland", "Mesa Intel(R) UHD Graphics 620 (KBL GT2)", GL},
        {"", "xcb", "llvmpipe (LLVM 15.0.6, 256 bits)", SW},
        {"", "xcb", "softpipe", SW},
        {"", "xcb", "Software Rasterizer", SW},
        {"", "xcb", std::nullopt, SW},
        {"gl", "xcb", "llvmpipe (LLVM 15.0.6, 256 bits)", GL},
        {"sw", "xcb", "AMD Radeon RX 580", SW},
        // QOpenGLWidget cannot work without a window system, forced or not.
        {"gl", "offscreen", std::nullopt, SW},
        {"", "minimal", "AMD Radeon RX 580", SW},
        {"bogus", "xcb", "AMD Radeon RX 580", GL},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.forced) + "/" + c.platform + "/" + c.glRenderer.value_or("none"));
        EXPECT_EQ(decideVideoRenderer(c.forced, c.platform, c.glRenderer), c.expected);
    }
}

}  // namespace
