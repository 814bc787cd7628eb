#pragma once
// The colours of the window's own controls, in one place so the controls and their tests agree.

#include <QColor>

namespace SkinColours {

// The slider's bar left of the knob; also the window's background, so the bar reads as "done".
inline QColor sliderDone() { return QColor::fromRgbF(0.09f, 0.63f, 1.0f); }
// The bar right of the knob: the standard light grey, two thirds white.
inline QColor sliderRemaining() { return QColor::fromRgbF(0.667f, 0.667f, 0.667f); }
inline QColor sliderKnob() { return Qt::white; }

inline QColor headerBackground() { return QColor::fromRgbF(0.2941f, 0.298f, 0.3294f); }
inline QColor headerText() { return Qt::white; }
inline QColor headerLine() { return Qt::white; }

inline QColor selectedRow() { return QColor::fromRgbF(0.1412f, 0.1373f, 0.1569f); }
inline QColor selectedText() { return Qt::white; }

inline QColor scrollFrame() { return Qt::white; }

}  // namespace SkinColours
