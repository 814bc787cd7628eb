#include "SetupTitleBar.h"

#include "WindowChromeMode.h"
#include "WindowEdgeResizer.h"
#include "WindowTitleBar.h"

#include <QEvent>
#include <QMainWindow>

namespace {

// The border band resizes a normal window; maximised, the content runs to the screen's edges.
class ContentMargins final : public QObject {
public:
    explicit ContentMargins(QMainWindow& window) : QObject(&window), window_(window) {
        apply();
        window.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &window_ && event->type() == QEvent::WindowStateChange) apply();
        return false;
    }

private:
    void apply() {
        const int border = window_.isMaximized() ? 0 : WindowEdgeResizer::kBorder;
        window_.setContentsMargins(border, WindowTitleBar::kHeight, border, border);
    }

    QMainWindow& window_;
};

}  // namespace

WindowTitleBar* SetupTitleBarForMainWindow(QMainWindow& window, WindowChromeMode mode) {
    if (mode != WindowChromeMode::OwnTitleBar) return nullptr;
    if (auto* existing = window.findChild<WindowTitleBar*>(QString(), Qt::FindDirectChildrenOnly)) return existing;
    window.setWindowFlag(Qt::FramelessWindowHint);
    new ContentMargins(window);
    new WindowEdgeResizer(window);
    return new WindowTitleBar(window);
}
