#include "SetupTitleBar.h"

#include "WindowChromeMode.h"
#include "WindowEdgeResizer.h"
#include "WindowTitleBar.h"

#include <QMainWindow>

WindowTitleBar* SetupTitleBarForMainWindow(QMainWindow& window, WindowChromeMode mode) {
    if (mode != WindowChromeMode::OwnTitleBar) return nullptr;
    if (auto* existing = window.findChild<WindowTitleBar*>(QString(), Qt::FindDirectChildrenOnly)) return existing;
    window.setWindowFlag(Qt::FramelessWindowHint);
    new WindowEdgeResizer(window);
    return new WindowTitleBar(window);
}
