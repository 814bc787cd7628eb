#include "AboutView.h"

#include "ui_AboutView.h"

#include "GPSUtils.h"

#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>

#ifndef DASHTRACK_VERSION
#error "DASHTRACK_VERSION must be defined by the build"
#endif

AboutView::AboutView(GPSUtils& utils, QWidget* parent)
    : QWidget(parent),
      ui_(std::make_unique<Ui::AboutView>()),
      utils_(utils),
      backgroundOpacity_(nullptr),
      foregroundOpacity_(nullptr) {
    ui_->setupUi(this);
    ui_->txtVersion->setText(tr("Version %1").arg(QStringLiteral(DASHTRACK_VERSION)));
    ui_->logoImg->load(QStringLiteral(":/icon/dashtrack.svg"));

    backgroundOpacity_ = new QGraphicsOpacityEffect(ui_->background);
    foregroundOpacity_ = new QGraphicsOpacityEffect(ui_->foreground);
    ui_->background->setGraphicsEffect(backgroundOpacity_);
    ui_->foreground->setGraphicsEffect(foregroundOpacity_);
    applyAlphas();

    connect(ui_->btnClose, &QPushButton::clicked, this, &AboutView::hideRequested);
    connect(&fade_, &AboutFade::alphasChanged, this, [this] {
        applyAlphas();
        emit alphasChanged();
    });
    connect(&fade_, &AboutFade::fadedOut, this, &AboutView::leaveWindow);

    // Not part of the window until the first show, even when made as its child.
    hide();
}

AboutView::~AboutView() = default;

void AboutView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        ui_->retranslateUi(this);
        ui_->txtVersion->setText(tr("Version %1").arg(QStringLiteral(DASHTRACK_VERSION)));
    }
    QWidget::changeEvent(event);
}

QPushButton& AboutView::closeButton() { return *ui_->btnClose; }

void AboutView::ShowAbout(bool show, QWidget* parent) {
    utils_.setStatusIsModal(show);
    shown_ = show;
    if (show) {
        cover(parent ? parent : parentWidget());
        fade_.fadeIn();
    } else {
        fade_.fadeOut();
    }
    applyAlphas();
}

void AboutView::cover(QWidget* parent) {
    if (!parent) return;
    if (parent != parentWidget()) {
        if (parentWidget()) parentWidget()->removeEventFilter(this);
        setParent(parent);
    }
    parent->installEventFilter(this);
    setGeometry(parent->rect());
    raise();
    if (!isVisible()) {
        QWidget* focus = parent->window()->focusWidget();
        previousFocus_ = focus && !isAncestorOf(focus) ? focus : nullptr;
        show();
    }
    ui_->btnClose->setFocus(Qt::OtherFocusReason);
}

void AboutView::leaveWindow() {
    if (parentWidget()) parentWidget()->removeEventFilter(this);
    hide();
    if (previousFocus_ && previousFocus_->isVisible()) previousFocus_->setFocus(Qt::OtherFocusReason);
    previousFocus_ = nullptr;
}

void AboutView::applyAlphas() {
    // A fade ends one step past its end value.
    backgroundOpacity_->setOpacity(std::clamp(fade_.backdropAlpha(), 0.0, 1.0));
    foregroundOpacity_->setOpacity(std::clamp(fade_.contentAlpha(), 0.0, 1.0));
}

bool AboutView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void AboutView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) emit hideRequested();
    // No key reaches the window's controls below.
    event->accept();
}

// Clicks, drags and the wheel end here: the window's content below must not react.
void AboutView::mousePressEvent(QMouseEvent* event) { event->accept(); }
void AboutView::mouseReleaseEvent(QMouseEvent* event) { event->accept(); }
void AboutView::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }
void AboutView::mouseMoveEvent(QMouseEvent* event) { event->accept(); }
void AboutView::wheelEvent(QWheelEvent* event) { event->accept(); }

bool AboutView::focusNextPrevChild(bool next) {
    // While shown, Tab stays on the Close button rather than wandering to the controls below.
    if (shown_) return true;
    return QWidget::focusNextPrevChild(next);
}
