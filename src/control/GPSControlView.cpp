#include "GPSControlView.h"

GPSControlView::GPSControlView(QWidget* parent) : QWidget(parent) { setFocusPolicy(Qt::StrongFocus); }
