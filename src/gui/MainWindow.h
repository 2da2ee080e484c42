#pragma once

#include <QMainWindow>

#include <memory>

namespace Ui {
class MainWindow;
}

namespace tarnic {

class ViewController;

// The main window: the ability table, the selected ability's detail with its hotkey, and the
// inventory keys. It holds the controls; the controller holds the state.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // Points the controller's outlets at the controls and connects the controls' actions to it,
    // as an interface file would. Call once, before the controller's viewDidLoad.
    void connectController(ViewController& controller);

private:
    std::unique_ptr<Ui::MainWindow> ui_;
};

} // namespace tarnic
