#include "FullScreenSwitch.h"

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>

#include <memory>

namespace {

// Swaps from for to in the parent's layout or any layout nested in it; false when from is in none.
bool swapInLayout(QWidget* parent, QWidget* from, QWidget* to) {
    QLayout* layout = parent->layout();
    if (layout == nullptr) return false;
    std::unique_ptr<QLayoutItem> old(layout->replaceWidget(from, to));
    return old != nullptr;
}

}  // namespace

void FullScreenSwitch::toggle() {
    if (away_) {
        leave();
    } else {
        enter();
    }
}

void FullScreenSwitch::enter() {
    if (away_) return;
    away_ = true;
    parent_ = widget_.parentWidget();
    geometry_ = widget_.geometry();
    inLayout_ = false;
    if (parent_) {
        // Parented to the old parent: it keeps owning the widget if the window goes first.
        auto* placeholder = new QWidget(parent_);
        placeholder->setSizePolicy(widget_.sizePolicy());
        placeholder->setMinimumSize(widget_.minimumSize());
        placeholder->setMaximumSize(widget_.maximumSize());
        placeholder->setGeometry(geometry_);
        inLayout_ = swapInLayout(parent_, &widget_, placeholder);
        placeholder->setVisible(widget_.isVisible());
        placeholder_ = placeholder;
        // A child with the Window flag is a window of its own that its parent still owns.
        widget_.setParent(parent_, Qt::Window);
    }
    if (QScreen* screen = QGuiApplication::primaryScreen()) widget_.setGeometry(screen->geometry());
    widget_.showFullScreen();
}

void FullScreenSwitch::leave() {
    if (!away_) return;
    away_ = false;
    widget_.showNormal();
    if (!parent_) {
        // Never had a parent, or the window is gone: it stays a window of its own.
        widget_.setGeometry(geometry_);
        return;
    }
    widget_.setParent(parent_, Qt::Widget);
    if (!(inLayout_ && placeholder_ && swapInLayout(parent_, placeholder_, &widget_))) {
        widget_.setGeometry(geometry_);
    }
    delete placeholder_.data();
    widget_.show();
}
