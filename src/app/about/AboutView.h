#pragma once
// The About overlay: covers a window's content with a dark backdrop and a card naming the
// program, its version and the licences of what it ships. It fades in and out (AboutFade) and,
// while shown, takes every click and key so nothing below it reacts, and marks the app modal.
//
// Ownership: the view becomes a child of the widget it is first shown over, which owns it from
// then on. At the end of a hide it stays that widget's child, hidden, ready for the next show.

#include "AboutFade.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class GPSUtils;
class QGraphicsOpacityEffect;
class QPushButton;
namespace Ui {
class AboutView;
}

class AboutView final : public QWidget {
    Q_OBJECT

public:
    explicit AboutView(GPSUtils& utils, QWidget* parent = nullptr);
    ~AboutView() override;

    // Show (fade in over `parent`, covering it and following its size) or hide (fade out, then
    // leave the window). The modal flag follows at once; a request during a fade reverses it.
    void ShowAbout(bool show, QWidget* parent);

    double backgroundAlpha() const { return fade_.backdropAlpha(); }
    double foregroundAlpha() const { return fade_.contentAlpha(); }
    bool isFading() const { return fade_.isRunning(); }
    QPushButton& closeButton();

signals:
    // The Close button or Escape: the controller decides, and calls ShowAbout(false, …).
    void hideRequested();
    // After every fade step.
    void alphasChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void changeEvent(QEvent* event) override;

private:
    void cover(QWidget* parent);
    void leaveWindow();
    void applyAlphas();

    std::unique_ptr<Ui::AboutView> ui_;
    GPSUtils& utils_;
    AboutFade fade_;
    QGraphicsOpacityEffect* backgroundOpacity_;
    QGraphicsOpacityEffect* foregroundOpacity_;
    // Where the keyboard was before the show, to hand it back after the hide.
    QPointer<QWidget> previousFocus_;
    bool shown_ = false;
};
