#pragma once
// Which command each button, slider and menu item of the main window sends.

class MainWindowDelegate;

namespace Ui {
class MainWindow;
}

void connectMainWindow(Ui::MainWindow& ui, MainWindowDelegate& controller);
