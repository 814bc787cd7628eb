#pragma once
// The main window: builds itself from its interface description (MainWindow.ui), hands its items
// to the controller, and tells the controller of its activation and closing.

#include "InterfaceTranslator.h"
#include "MainWindowDelegate.h"

#include <QMainWindow>

#include <memory>

class GPSUtils;

namespace Ui {
class MainWindow;
}

class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    // settings must outlive the window; the program passes GPSUtils::sharedUtils().
    explicit MainWindow(GPSUtils& settings, QWidget* parent = nullptr);
    ~MainWindow() override;

    // Every item of the interface description, by its name there.
    Ui::MainWindow& ui() { return *ui_; }
    MainWindowDelegate& controller() { return *controller_; }

protected:
    bool event(QEvent* event) override;
    // A new language: the interface description's texts and those made in code, again.
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    // First in, last out: the window's texts are made in its language from the start.
    InterfaceTranslator translator_;
    std::unique_ptr<Ui::MainWindow> ui_;
    // Destroyed before the items (children of the window) it refers to.
    std::unique_ptr<MainWindowDelegate> controller_;
};
