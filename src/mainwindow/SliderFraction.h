#pragma once
// A QSlider holds integers; the controller thinks in fractions from 0 to 1. These read and write
// a slider's value as that fraction of its range.

class QAbstractSlider;

// The value as a fraction of the range: 0 at minimum, 1 at maximum (0 for an empty range).
double sliderFraction(const QAbstractSlider& slider);

// Moves the slider to the nearest step of the fraction, clamped to 0..1. Sends no valueChanged:
// that signal is kept for the user's own moves, so that setting a slider never runs its action.
void setSliderFraction(QAbstractSlider& slider, double fraction);
