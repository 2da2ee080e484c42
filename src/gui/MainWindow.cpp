#include "gui/MainWindow.h"

#include "contact/ContactPanel.h"
#include "gui/PopUpButton.h"
#include "gui/EditorController.h"
#include "gui/FileExchangeController.h"
#include "gui/InventoryPanelController.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QLabel>
#include <QStatusBar>

namespace tarnic {

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent), ui_(new Ui::MainWindow) {
    ui_->setupUi(this);
    // The inventory key controls appear once a slot is chosen; they keep their room meanwhile
    // so that the panel does not jump.
    for (QWidget* control :
         {static_cast<QWidget*>(ui_->inventPopup), static_cast<QWidget*>(ui_->isShiftBox),
          static_cast<QWidget*>(ui_->delBTN)}) {
        QSizePolicy policy = control->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        control->setSizePolicy(policy);
        control->hide();
    }
    // The number of clashes stands in the status bar, where a glance finds it.
    auto* clashes = new QLabel(this);
    clashes->setObjectName(QStringLiteral("clashLbl"));
    clashes->setTextFormat(Qt::PlainText);
    clashes->setToolTip(tr("Clashes: two abilities of one unit on the same key. The New column "
                           "marks each of them."));
    ui_->statusbar->addWidget(clashes, 1);
    // Shown only while a change could not be saved; the tooltip says where and why. It never
    // widens the window.
    auto* storeWarning = new QLabel(this);
    storeWarning->setObjectName(QStringLiteral("storeWarningLbl"));
    storeWarning->setTextFormat(Qt::PlainText);
    storeWarning->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    storeWarning->hide();
    ui_->statusbar->addWidget(storeWarning, 1);
    // Quitting is closing the main window.
    connect(ui_->actionQuit, &QAction::triggered, this, &QWidget::close);
    connect(ui_->actionContact, &QAction::triggered, this, [this] { showContactPanel(this); });
}

MainWindow::~MainWindow() = default;

void MainWindow::closeEvent(QCloseEvent* event) {
    emit closing();
    QMainWindow::closeEvent(event);
}

void MainWindow::connectControllers(EditorController& editor, FileExchangeController& fileExchange,
                                    InventoryPanelController& inventoryPanel) {
    Ui::MainWindow& w = *ui_;
    editor.setOutlets({.tableView = w.tableView,
                       .spellImage = w.spellImage,
                       .spellLbl = w.spellLbl,
                       .parentImage = w.parentImage,
                       .parentLbl = w.parentLbl,
                       .defHotkey = w.defHotkey,
                       .keysPopup = w.keysPopup,
                       .clashLbl = findChild<QLabel*>(QStringLiteral("clashLbl")),
                       .storeWarningLbl = findChild<QLabel*>(QStringLiteral("storeWarningLbl")),
                       .gridFollowsBox = w.gridFollowsBox});
    fileExchange.setWindow(this);
    inventoryPanel.setOutlets(
        {.inventButtons = {w.invent1, w.invent2, w.invent3, w.invent4, w.invent5, w.invent6},
         .inventPopup = w.inventPopup,
         .isShiftBox = w.isShiftBox,
         .delBTN = w.delBTN,
         .onlyInGameBox = w.onlyInGameBox,
         .pauseInChatBox = w.pauseInChatBox,
         .inventStatusLbl = w.inventStatusLbl,
         .gameStatusLbl = w.gameStatusLbl,
         .lastTapLbl = w.lastTapLbl});

    // A pop-up changes a key only when the player picks from its list; the pick sends the
    // action, then the focus goes back to the table so that the arrow keys move through the
    // abilities again.
    const auto backToTable = [table = w.tableView] { table->setFocus(Qt::OtherFocusReason); };
    connect(w.keysPopup, &PopUpButton::chosen, &editor, &EditorController::setKey);
    connect(w.keysPopup, &PopUpButton::chosen, this, backToTable);
    connect(w.resetButton, &QPushButton::clicked, &editor, &EditorController::resetToDef);
    connect(w.gridButton, &QPushButton::clicked, &editor, &EditorController::allQWER);
    connect(w.exportButton, &QPushButton::clicked, &fileExchange,
            &FileExchangeController::saveCKeys);
    connect(w.actionReset, &QAction::triggered, &editor, &EditorController::resetToDef);
    connect(w.actionGrid, &QAction::triggered, &editor, &EditorController::allQWER);
    connect(w.actionExport, &QAction::triggered, &fileExchange, &FileExchangeController::saveCKeys);
    connect(w.actionImport, &QAction::triggered, &fileExchange,
            &FileExchangeController::importCKeys);

    InventoryPanelController& p = inventoryPanel;
    connect(w.invent1, &QPushButton::clicked, &p, &InventoryPanelController::invent1);
    connect(w.invent2, &QPushButton::clicked, &p, &InventoryPanelController::invent2);
    connect(w.invent3, &QPushButton::clicked, &p, &InventoryPanelController::invent3);
    connect(w.invent4, &QPushButton::clicked, &p, &InventoryPanelController::invent4);
    connect(w.invent5, &QPushButton::clicked, &p, &InventoryPanelController::invent5);
    connect(w.invent6, &QPushButton::clicked, &p, &InventoryPanelController::invent6);
    connect(w.inventPopup, &PopUpButton::chosen, &p, &InventoryPanelController::setInventory);
    connect(w.inventPopup, &PopUpButton::chosen, this, backToTable);
    connect(w.isShiftBox, &QCheckBox::clicked, &p, &InventoryPanelController::setInventoryKeyBox);
    connect(w.delBTN, &QPushButton::clicked, &p, &InventoryPanelController::eraseKey);
    connect(w.onlyInGameBox, &QCheckBox::clicked, &p,
            &InventoryPanelController::setOnlyWhileGameInFront);
    connect(w.pauseInChatBox, &QCheckBox::clicked, &p,
            &InventoryPanelController::setPauseWhileTypingInChat);
    connect(w.gridFollowsBox, &QCheckBox::clicked, &editor,
            &EditorController::setGridFollowsKeyboard);
}

} // namespace tarnic
