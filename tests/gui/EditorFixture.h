#pragma once

#include "core/record/AbilityRecord.h"
#include "core/remapper/InventoryRemapper.h"
#include "gui/MainWindow.h"
#include "gui/ViewController.h"
#include "ui_MainWindow.h"

#include <QByteArray>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <vector>

namespace tarnic::testing {

// One start of the application on a private store: every test gets its own XDG config folder
// (XDG_CONFIG_HOME in a temporary folder), and may start the application more than once on it.
class EditorFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Starts the application as main() does: store, controller, window, view loading, shown.
    void launch();
    // Ends this start (without quitting the test's application object).
    void shutDown();

    // What the store file holds now, read through a fresh store object.
    std::optional<std::vector<AbilityRecord>> storedMainDic() const;
    std::optional<InventoryModel> storedInventoryModel(int slot) const;
    bool storeHasKey(const QString& key) const;
    // Writes values into the store before a start.
    void storeMainDic(const std::vector<AbilityRecord>& list) const;
    void storeInventoryModel(int slot, const InventoryModel& model) const;
    void storeRaw(const QString& key, const QVariant& value) const;

    // Drives the window as a player would.
    void clickRow(int row);
    void click(QAbstractButton& button);
    void choose(QComboBox& popup, const QString& title);

    QString storePath() const;
    QString tempPath(const QString& name) const { return dir_.filePath(name); }

    Ui::MainWindow& ui() { return window_->ui(); }
    ViewController& vc() { return *controller_; }
    MainWindow& window() { return *window_; }

    QTemporaryDir dir_;
    std::unique_ptr<QSettings> settings_;
    std::unique_ptr<ViewController> controller_;
    std::unique_ptr<MainWindow> window_;

private:
    QByteArray previousConfigHome_;
    bool hadConfigHome_ = false;
};

} // namespace tarnic::testing
