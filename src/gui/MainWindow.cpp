#include "gui/MainWindow.h"

#include "contact/ContactPanel.h"
#include "gui/PopUpButton.h"
#include "gui/ViewController.h"
#include "ui_MainWindow.h"

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

void MainWindow::connectController(ViewController& c) {
    Ui::MainWindow& w = *ui_;
    c.tableView = w.tableView;
    c.spellImage = w.spellImage;
    c.spellLbl = w.spellLbl;
    c.parentImage = w.parentImage;
    c.parentLbl = w.parentLbl;
    c.defHotkey = w.defHotkey;
    c.keysPopup = w.keysPopup;
    c.inventPopup = w.inventPopup;
    c.isShiftBox = w.isShiftBox;
    c.delBTN = w.delBTN;
    c.clashLbl = findChild<QLabel*>(QStringLiteral("clashLbl"));
    c.storeWarningLbl = findChild<QLabel*>(QStringLiteral("storeWarningLbl"));
    c.inventButtons = {w.invent1, w.invent2, w.invent3, w.invent4, w.invent5, w.invent6};
    c.inventStatusLbl = w.inventStatusLbl;
    c.onlyInGameBox = w.onlyInGameBox;
    c.pauseInChatBox = w.pauseInChatBox;
    c.gameStatusLbl = w.gameStatusLbl;
    c.lastTapLbl = w.lastTapLbl;
    c.gridFollowsBox = w.gridFollowsBox;

    // A pop-up changes a key only when the player picks from its list; the pick sends the
    // action, then the focus goes back to the table so that the arrow keys move through the
    // abilities again.
    const auto backToTable = [table = w.tableView] { table->setFocus(Qt::OtherFocusReason); };
    connect(w.keysPopup, &PopUpButton::chosen, &c, &ViewController::setKey);
    connect(w.keysPopup, &PopUpButton::chosen, this, backToTable);
    connect(w.resetButton, &QPushButton::clicked, &c, &ViewController::resetToDef);
    connect(w.gridButton, &QPushButton::clicked, &c, &ViewController::allQWER);
    connect(w.exportButton, &QPushButton::clicked, &c, &ViewController::saveCKeys);
    connect(w.actionReset, &QAction::triggered, &c, &ViewController::resetToDef);
    connect(w.actionGrid, &QAction::triggered, &c, &ViewController::allQWER);
    connect(w.actionExport, &QAction::triggered, &c, &ViewController::saveCKeys);
    connect(w.actionImport, &QAction::triggered, &c, &ViewController::importCKeys);

    connect(w.invent1, &QPushButton::clicked, &c, &ViewController::invent1);
    connect(w.invent2, &QPushButton::clicked, &c, &ViewController::invent2);
    connect(w.invent3, &QPushButton::clicked, &c, &ViewController::invent3);
    connect(w.invent4, &QPushButton::clicked, &c, &ViewController::invent4);
    connect(w.invent5, &QPushButton::clicked, &c, &ViewController::invent5);
    connect(w.invent6, &QPushButton::clicked, &c, &ViewController::invent6);
    connect(w.inventPopup, &PopUpButton::chosen, &c, &ViewController::setInventoryKey);
    connect(w.inventPopup, &PopUpButton::chosen, this, backToTable);
    connect(w.isShiftBox, &QCheckBox::clicked, &c, &ViewController::setInventoryKeyBox);
    connect(w.delBTN, &QPushButton::clicked, &c, &ViewController::eraseKey);
    connect(w.onlyInGameBox, &QCheckBox::clicked, &c, &ViewController::setOnlyWhileGameInFront);
    connect(w.pauseInChatBox, &QCheckBox::clicked, &c, &ViewController::setPauseWhileTypingInChat);
    connect(w.gridFollowsBox, &QCheckBox::clicked, &c, &ViewController::setGridFollowsKeyboard);
}

} // namespace tarnic
