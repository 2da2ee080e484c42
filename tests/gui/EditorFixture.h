#pragma once

#include "RecordingAlerts.h"
#include "WindowControls.h"
#include "app/Application.h"
#include "core/record/AbilityRecord.h"
#include "core/bindings/SlotBinding.h"
#include "gui/MainWindow.h"
#include "platform/fake/FakePlatform.h"

#include <QByteArray>
#include <QSettings>
#include "support/XdgSandbox.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <vector>

namespace tarnic::testing {

// An expected export from tests/data (its README says how each was made).
QByteArray golden(const char* name);
// A file's bytes, or "<unreadable>".
QByteArray bytesOf(const QString& path);
// Writes a file with exactly these bytes; fails the test when it cannot.
void writeFile(const QString& path, const QByteArray& bytes);

// One start of the application, put together exactly as the program is, on the recording fakes
// and a private store: every test gets its own XDG config folder (XDG_CONFIG_HOME in a temporary
// folder), and may start the application more than once on it. The version gate is left out (no
// site), the game-detection timer ticks every few milliseconds instead of every 2 seconds, and
// the window's alerts are recorded in alerts() instead of shown.
class EditorFixture : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    // Starts the application as main() does, on a fresh set of fakes.
    void launch();
    // The same on `platform` (for example the null platform).
    void launch(Platform platform);
    static constexpr std::chrono::milliseconds kTestTickInterval{20};
    // Ends this start (without quitting the test's application object).
    void shutDown();

    // What the store file holds now, read through a fresh store object.
    std::optional<std::vector<AbilityRecord>> storedMainDic() const;
    std::optional<SlotBinding> storedInventoryModel(int slot) const;
    bool storeHasKey(const QString& key) const;
    // Every key the store file holds now.
    QStringList storeKeys() const;
    // Writes values into the store before a start.
    void storeMainDic(const std::vector<AbilityRecord>& list) const;
    void storeInventoryModel(int slot, const SlotBinding& binding) const;
    void storeRaw(const QString& key, const QVariant& value) const;

    // Drives the window as a player would.
    void clickRow(int row);
    void click(QAbstractButton& button);
    void choose(QComboBox& popup, const QString& title);

    QString storePath() const;
    QString tempPath(const QString& name) const { return dir_.filePath(name); }

    WindowControls& ui() { return *controls_; }
    Application& app() { return *app_; }
    EditorController& editor() { return app_->editor(); }
    FileExchangeController& exchange() { return app_->fileExchange(); }
    InventoryPanelController& panel() { return app_->inventoryPanel(); }
    MainWindow& window() { return app_->window(); }
    RecordingAlerts& alerts() { return alerts_; }
    // What the remapper watches and types through: recording fakes the tests drive.
    FakeParts fakes() { return fakeParts(app_->platform()); }

    XdgSandbox dir_;
    RecordingAlerts alerts_;
    std::unique_ptr<Application> app_;
    std::unique_ptr<WindowControls> controls_;
};

} // namespace tarnic::testing
