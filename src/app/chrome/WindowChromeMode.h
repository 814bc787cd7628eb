#pragma once
// Whether the main window draws its own title bar or leaves it to the window manager.

#include <QString>

enum class WindowChromeMode { OwnTitleBar, SystemDecorations };

// X11 and Wayland can move and resize a frameless window for us; anywhere else (offscreen, a
// framebuffer) the window manager's decorations stay. DASHTRACK_WINDOW_DECORATIONS=system asks for
// them anywhere, for desktops whose window manager handles frameless windows badly.
WindowChromeMode chromeModeFor(const QString& platformName, const QString& decorationsSetting);

// The mode for this run, from the running application's platform and the environment.
WindowChromeMode currentChromeMode();
