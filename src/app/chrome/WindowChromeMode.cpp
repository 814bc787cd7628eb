#include "WindowChromeMode.h"

#include <QGuiApplication>

WindowChromeMode chromeModeFor(const QString& platformName, const QString& decorationsSetting) {
    if (decorationsSetting.compare(QLatin1String("system"), Qt::CaseInsensitive) == 0)
        return WindowChromeMode::SystemDecorations;
    if (platformName == QLatin1String("xcb") || platformName.startsWith(QLatin1String("wayland")))
        return WindowChromeMode::OwnTitleBar;
    return WindowChromeMode::SystemDecorations;
}

WindowChromeMode currentChromeMode() {
    return chromeModeFor(QGuiApplication::platformName(), qEnvironmentVariable("DASHTRACK_WINDOW_DECORATIONS"));
}
