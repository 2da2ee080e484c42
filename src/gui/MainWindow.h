#pragma once

#include <QMainWindow>

#include <memory>

namespace Ui {
class MainWindow;
}

namespace tarnic {

class EditorController;
class FileExchangeController;
class InventoryPanelController;

// The main window: the ability table, the selected ability's detail with its hotkey, and the
// inventory keys. It holds the controls; the controllers hold the state.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    // Points each controller at the controls it works on and connects the controls' actions to
    // it. Call once, before the controllers' viewDidLoad.
    void connectControllers(EditorController& editor, FileExchangeController& fileExchange,
                            InventoryPanelController& inventoryPanel);

signals:
    // The window is being closed (by the player, the window manager or Quit).
    void closing();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    std::unique_ptr<Ui::MainWindow> ui_;
};

} // namespace tarnic
