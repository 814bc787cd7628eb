#include "GPSTableView.h"

GPSTableView::GPSTableView(QWidget* parent) : QTableView(parent) {}
