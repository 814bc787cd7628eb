#pragma once
// Dashtrack's icon for its windows: the drawing from the resources at the usual icon sizes.

#include <QIcon>

// Needs a QGuiApplication.
QIcon applicationIcon();
