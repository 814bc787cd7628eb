#pragma once
// Brings a window to the front for a request from outside (another start, media controls). Under
// X11 a window manager's focus-stealing prevention may still keep it behind, flagged instead.

class QWidget;

void bringToFront(QWidget& window);
