#pragma once
// Which video surface this machine gets: mpv's OpenGL renderer where a hardware OpenGL context
// exists, its software renderer otherwise.
//
// DASHTRACK_VIDEO_RENDERER=gl|sw forces one (tests and benchmarks); Qt's offscreen platform always
// gets the software one, since QOpenGLWidget cannot work there.

#include <optional>
#include <string>
#include <string_view>

enum class VideoRenderer { OpenGL, Software };

// The decision itself. `forced` is the environment's choice ("" when unset), `platform` Qt's
// platform name, `glRenderer` the GL_RENDERER of a probe context (nothing when none could be made).
VideoRenderer decideVideoRenderer(std::string_view forced, std::string_view platform,
                                  const std::optional<std::string>& glRenderer);

// Mesa's CPU rasterisers and the like: OpenGL that would only be slower than mpv's own software path.
bool isSoftwareGLRenderer(std::string_view glRenderer);

// The user's stored choice ("gl", "sw", anything else automatic), used where the environment
// forces nothing. Only a call before the first chosenVideoRenderer() counts.
void setPreferredVideoRenderer(std::string_view word);

// Decided once per process, after QGuiApplication exists.
VideoRenderer chosenVideoRenderer();
