#include "WindowControls.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace tarnic::test {

namespace {

template <typename T> T* control(QWidget& window, const char* name) {
    T* found = window.findChild<T*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << "the main window has no control " << name;
    return found;
}

} // namespace

WindowControls::WindowControls(QWidget& window)
    : tableView(control<QTableView>(window, "tableView")),
      spellImage(control<QLabel>(window, "spellImage")),
      spellLbl(control<QLabel>(window, "spellLbl")),
      defHotkey(control<QLabel>(window, "defHotkey")),
      parentImage(control<QLabel>(window, "parentImage")),
      parentLbl(control<QLabel>(window, "parentLbl")),
      keysPopup(control<QComboBox>(window, "keysPopup")),
      gridButton(control<QPushButton>(window, "gridButton")),
      resetButton(control<QPushButton>(window, "resetButton")),
      invent1(control<QPushButton>(window, "invent1")),
      invent2(control<QPushButton>(window, "invent2")),
      invent3(control<QPushButton>(window, "invent3")),
      invent4(control<QPushButton>(window, "invent4")),
      invent5(control<QPushButton>(window, "invent5")),
      invent6(control<QPushButton>(window, "invent6")),
      inventPopup(control<QComboBox>(window, "inventPopup")),
      isShiftBox(control<QCheckBox>(window, "isShiftBox")),
      delBTN(control<QPushButton>(window, "delBTN")),
      onlyInGameBox(control<QCheckBox>(window, "onlyInGameBox")),
      pauseInChatBox(control<QCheckBox>(window, "pauseInChatBox")),
      inventStatusLbl(control<QLabel>(window, "inventStatusLbl")),
      exportButton(control<QPushButton>(window, "exportButton")),
      clashLbl(control<QLabel>(window, "clashLbl")),
      actionImport(control<QAction>(window, "actionImport")),
      actionExport(control<QAction>(window, "actionExport")),
      actionQuit(control<QAction>(window, "actionQuit")),
      actionGrid(control<QAction>(window, "actionGrid")),
      actionReset(control<QAction>(window, "actionReset")),
      actionContact(control<QAction>(window, "actionContact")) {}

QFileDialog* visibleFileDialog() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<QFileDialog*>(widget); dialog && widget->isVisible()) {
            return dialog;
        }
    }
    return nullptr;
}

} // namespace tarnic::test
