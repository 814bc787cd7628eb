#include "WindowTitleBar.h"

#include "TitleBarButton.h"
#include "WindowEdgeResizer.h"
#include "WindowEdges.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QWindow>

WindowTitleBar::WindowTitleBar(QWidget& window)
    : QWidget(&window),
      window_(window),
      title_(new QLabel(this)),
      minimise_(new TitleBarButton(TitleBarButton::Glyph::Minimise, this)),
      maximise_(new TitleBarButton(TitleBarButton::Glyph::Maximise, this)),
      close_(new TitleBarButton(TitleBarButton::Glyph::Close, this)) {
    setObjectName(QStringLiteral("titleBar"));
    setAccessibleName(tr("Title bar"));
    setFixedHeight(kHeight);

    QFont font = QApplication::font();
    font.setPointSizeF(12);
    title_->setObjectName(QStringLiteral("windowTitle"));
    title_->setAccessibleDescription(tr("Window title"));
    title_->setFont(font);
    title_->setTextFormat(Qt::PlainText);
    title_->setAlignment(Qt::AlignCenter);
    title_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    title_->setAttribute(Qt::WA_TransparentForMouseEvents);
    QPalette palette = title_->palette();
    palette.setColor(QPalette::WindowText, Qt::white);
    title_->setPalette(palette);
    title_->setText(window.windowTitle());

    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    // The title is centred over the whole strip: a space as wide as the buttons balances them.
    // Centred in a column with 2×drop more at its top, it sits `kTitleDrop` lower.
    layout->addSpacing(3 * close_->sizeHint().width());
    auto* titleColumn = new QVBoxLayout;
    titleColumn->setContentsMargins(0, 2 * kTitleDrop, 0, 0);
    titleColumn->addWidget(title_);
    layout->addLayout(titleColumn, 1);
    for (TitleBarButton* button : {minimise_, maximise_, close_}) layout->addWidget(button, 0, Qt::AlignTop);

    connect(minimise_, &QAbstractButton::clicked, this, [this] { window_.showMinimized(); });
    connect(maximise_, &QAbstractButton::clicked, this, [this] { toggleMaximised(); });
    connect(close_, &QAbstractButton::clicked, this, [this] { window_.close(); });
    connect(&window, &QWidget::windowTitleChanged, title_, &QLabel::setText);

    window.installEventFilter(this);
    placeOnWindow();
    followWindowState();
}

void WindowTitleBar::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(tr("Title bar"));
        title_->setAccessibleDescription(tr("Window title"));
    }
    QWidget::changeEvent(event);
}

bool WindowTitleBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &window_) {
        if (event->type() == QEvent::Resize) placeOnWindow();
        if (event->type() == QEvent::WindowStateChange) followWindowState();
    }
    return QWidget::eventFilter(watched, event);
}

void WindowTitleBar::placeOnWindow() {
    setGeometry(0, 0, window_.width(), kHeight);
    raise();
}

void WindowTitleBar::followWindowState() {
    // The strip's height stays free above the content; the border band resizes a normal window,
    // while a maximised one runs to the screen's edges.
    const int border = window_.isMaximized() ? 0 : WindowEdgeResizer::kBorder;
    window_.setContentsMargins(border, kHeight, border, border);
    maximise_->setGlyph(window_.isMaximized() ? TitleBarButton::Glyph::Restore : TitleBarButton::Glyph::Maximise);
}

void WindowTitleBar::toggleMaximised() {
    if (window_.isMaximized())
        window_.showNormal();
    else
        window_.showMaximized();
}

void WindowTitleBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return QWidget::mousePressEvent(event);
    event->accept();
    const QPoint inWindow = mapTo(&window_, event->position().toPoint());
    const Qt::Edges edges = resizeEdgesAt(inWindow, window_.size(), kResizeBand);
    if (edges != Qt::Edges() && !window_.isMaximized()) {
        startWindowResize(window_, edges);
        return;
    }
    QWindow* handle = window_.windowHandle();
    // Without a window manager that moves windows (a bare X server), we move it ourselves.
    if (handle == nullptr || !handle->startSystemMove())
        dragOffset_ = event->globalPosition().toPoint() - window_.frameGeometry().topLeft();
}

void WindowTitleBar::mouseMoveEvent(QMouseEvent* event) {
    if (dragOffset_ && (event->buttons() & Qt::LeftButton) && !window_.isMaximized())
        window_.move(event->globalPosition().toPoint() - *dragOffset_);
    QWidget::mouseMoveEvent(event);
}

void WindowTitleBar::mouseReleaseEvent(QMouseEvent* event) {
    dragOffset_.reset();
    QWidget::mouseReleaseEvent(event);
}

void WindowTitleBar::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        dragOffset_.reset();
        toggleMaximised();
        event->accept();
        return;
    }
    QWidget::mouseDoubleClickEvent(event);
}
