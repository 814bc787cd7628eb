#pragma once
// One of the title bar's window buttons: a white glyph (close, minimise, maximise or restore) on the
// window's own background, with a soft disc under the pointer; close turns red, as desktops do.

#include <QAbstractButton>

class TitleBarButton final : public QAbstractButton {
    Q_OBJECT

public:
    enum class Glyph { Close, Minimise, Maximise, Restore };

    TitleBarButton(Glyph glyph, QWidget* parent);

    Glyph glyph() const { return glyph_; }
    void setGlyph(Glyph glyph);

    QSize sizeHint() const override { return {40, 28}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // The accessible name and tooltip of the glyph, in the interface's language.
    void nameGlyph();

    Glyph glyph_;
    bool hovered_ = false;
};
