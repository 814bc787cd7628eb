#pragma once
// Gives the main window its look at the top: its own title bar on a frameless window, or the window
// manager's decorations where the platform cannot move a frameless window. Runs once, before the
// window is first shown; the layout then keeps the title bar in place through every resize.

class QMainWindow;
class WindowTitleBar;

enum class WindowChromeMode;

// The window's title bar, or null when the window manager draws it.
WindowTitleBar* SetupTitleBarForMainWindow(QMainWindow& window, WindowChromeMode mode);
