#pragma once
// The About overlay's two-stage fade. In: the backdrop rises, then the content. Out: the content
// falls, then the backdrop. Each stage steps its alpha by 0.02 on its own repeating timer (backdrop
// 10 ms, content 3 ms); a tick tests for the end before it steps, so an alpha ends one step past
// 0 or 1, and a stage that has ended starts its successor once.

#include <QObject>
#include <QTimer>

class AboutFade final : public QObject {
    Q_OBJECT

public:
    explicit AboutFade(QObject* parent = nullptr);

    // Either call stops whatever fade is running and carries on from the alphas as they stand.
    void fadeIn();
    void fadeOut();

    double backdropAlpha() const { return backdrop_ / double(kOpaque); }
    double contentAlpha() const { return content_ / double(kOpaque); }
    bool isRunning() const { return backdropTimer_.isActive() || contentTimer_.isActive(); }

signals:
    // After every step of either alpha.
    void alphasChanged();
    // The backdrop's last step out: the overlay can leave the window.
    void fadedOut();

private:
    // Alphas in hundredths, so fifty steps land exactly on 0 and 1.
    static constexpr int kOpaque = 100;
    static constexpr int kStep = 2;

    void backdropTick();
    void contentTick();
    void restartFrom(bool in);

    QTimer backdropTimer_;
    QTimer contentTimer_;
    int backdrop_ = 0;
    int content_ = 0;
    bool in_ = true;
};
