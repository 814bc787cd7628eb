#pragma once
// The window's skin, one call per control. Each call is safe to repeat.

class QSlider;
class QTableView;

// The two-coloured bar and white knob (horizontal sliders only).
void applySliderSkin(QSlider& slider);

// The dark header with white lines, the near-black selected row and the white frame. The table
// keeps its header's sections and resize modes; connect to horizontalHeader() after this call.
void applyPlaylistTableSkin(QTableView& table);
