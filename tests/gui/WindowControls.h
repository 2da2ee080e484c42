#pragma once

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QWidget>

namespace tarnic::test {

// The main window's controls, found by their object names as a player's accessibility tools
// would find them: the tests drive the window through these, and the window keeps its form to
// itself. A control that is not there fails the test that found it.
struct WindowControls {
    explicit WindowControls(QWidget& window);

    QTableView* tableView;
    QLabel* spellImage;
    QLabel* spellLbl;
    QLabel* defHotkey;
    QLabel* parentImage;
    QLabel* parentLbl;
    QComboBox* keysPopup;
    QPushButton* gridButton;
    QPushButton* resetButton;
    QPushButton* invent1;
    QPushButton* invent2;
    QPushButton* invent3;
    QPushButton* invent4;
    QPushButton* invent5;
    QPushButton* invent6;
    QComboBox* inventPopup;
    QCheckBox* isShiftBox;
    QPushButton* delBTN;
    QCheckBox* onlyInGameBox;
    QCheckBox* pauseInChatBox;
    QLabel* inventStatusLbl;
    QPushButton* exportButton;
    QLabel* clashLbl;
    QAction* actionImport;
    QAction* actionExport;
    QAction* actionQuit;
    QAction* actionGrid;
    QAction* actionReset;
    QAction* actionContact;
};

// The file dialog the window has open (export or import), or null when none is showing.
QFileDialog* visibleFileDialog();

} // namespace tarnic::test
