#include "EditorFixture.h"

#include "core/catalogue/Catalogue.h"
#include "core/editor/KeyAssignment.h"
#include "support/SpecialFiles.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>

namespace tarnic::testing {
namespace {

QString dataFile(const char* name) {
    return QStringLiteral(TARNIC_SOURCE_DIR "/tests/data/") + QLatin1String(name);
}

QFileDialog* openFileDialog() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<QFileDialog*>(widget); dialog && widget->isVisible()) {
            return dialog;
        }
    }
    return nullptr;
}

class ImportWindow : public EditorFixture {
protected:
    void SetUp() override {
        EditorFixture::SetUp();
        launch();
    }
    // Runs File ▸ Import CustomKeys… and answers its dialog; returns once the answer and any
    // message have been handled.
    void importAnswering(std::optional<QString> path) {
        QSignalSpy finished(&exchange(), &FileExchangeController::importFinished);
        exchange().fileDialog().setNextAnswer(std::move(path));
        ui().actionImport->trigger();
        ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    }
    void exportAnswering(const QString& path) {
        QSignalSpy finished(&exchange(), &FileExchangeController::exportFinished);
        exchange().fileDialog().setNextAnswer(path);
        click(*ui().exportButton);
        ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    }
    // The one message the import showed.
    Alert message() {
        EXPECT_EQ(alerts().shown.size(), 1u);
        return alerts().shown.empty() ? Alert() : alerts().shown.back();
    }
    // Export, Reset to defaults, import that file, export again: both files.
    std::pair<QByteArray, QByteArray> roundTrip() {
        const QString first = tempPath("first.txt");
        const QString second = tempPath("second.txt");
        exportAnswering(first);
        click(*ui().resetButton);
        importAnswering(first);
        exportAnswering(second);
        return {bytesOf(first), bytesOf(second)};
    }
};

TEST_F(ImportWindow, TheFileMenuOffersImportBeforeExportOnCtrlO) {
    QMenu* file = nullptr;
    for (QAction* entry : window().menuBar()->actions()) {
        if (entry->menu() != nullptr && entry->text() == "&File") {
            file = entry->menu();
        }
    }
    ASSERT_NE(file, nullptr);
    ASSERT_GE(file->actions().size(), 2);
    EXPECT_EQ(file->actions().at(0), ui().actionImport);
    EXPECT_EQ(file->actions().at(1), ui().actionExport);
    EXPECT_EQ(ui().actionImport->text(), "&Import CustomKeys…");
    EXPECT_EQ(ui().actionImport->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_O));
}

TEST_F(ImportWindow, CtrlOImports) {
    QSignalSpy finished(&exchange(), &FileExchangeController::importFinished);
    exchange().fileDialog().setNextAnswer(dataFile("export-hand-set.txt"));
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window(), 5000));
    QTest::keyClick(&window(), Qt::Key_O, Qt::ControlModifier);
    ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    EXPECT_EQ(editor().mainDic()[0].at(new_hotkey), "Q");
}

TEST_F(ImportWindow, TheGamesOwnFileExportsAsTheUntouchedList) {
    importAnswering(dataFile("game-default-CustomKeys.txt"));
    EXPECT_EQ(message().text, "160 hotkeys read, 0 changed; 264 sections of the file are not in "
                              "the catalogue and were left out.");
    EXPECT_EQ(message().informativeText, "");
    EXPECT_EQ(message().icon, QMessageBox::Information);
    EXPECT_EQ(message().buttons, QStringList{"OK"});
    EXPECT_EQ(editor().mainDic(), all_data());
    const QString target = tempPath("CustomKeys.txt");
    exportAnswering(target);
    EXPECT_EQ(bytesOf(target), golden("export-untouched.txt"));
}

TEST_F(ImportWindow, HandSetKeysRoundTrip) {
    const std::vector<std::pair<int, QString>> choices = {{0, "Q"}, {9, "Z"}, {40, "M"}};
    for (const auto& [row, key] : choices) {
        clickRow(row);
        choose(*ui().keysPopup, key);
    }
    const auto [first, second] = roundTrip();
    EXPECT_EQ(first, golden("export-hand-set.txt"));
    EXPECT_EQ(second, first);
    EXPECT_EQ(message().text, "160 hotkeys read, 3 changed.");
    EXPECT_EQ(editor().tableModel().index(9, 3).data().toString(), "Z");
}

TEST_F(ImportWindow, GridLayoutRoundTrips) {
    click(*ui().gridButton);
    const auto [first, second] = roundTrip();
    EXPECT_EQ(first, golden("export-grid-layout.txt"));
    EXPECT_EQ(second, first);
}

TEST_F(ImportWindow, NamesInAnyCaseReadAsTheGameReadsThem) {
    // Each kept file, then its copies with names in lower case, in upper case and in lower case
    // but for hero abilities (tests/data/make-case-variants.py), from the grid layout each time.
    const std::vector<std::pair<QString, const char*>> files = {
        {"game-default-CustomKeys", "export-untouched.txt"},
        {"export-grid-layout", "export-grid-layout.txt"},
        {"export-hand-set", "export-hand-set.txt"}};
    for (const auto& [stem, expectedExport] : files) {
        std::optional<Alert> originalMessage;
        for (const QString& copy :
             {stem + ".txt", "case-variants/" + stem + ".lower.txt",
              "case-variants/" + stem + ".upper.txt", "case-variants/" + stem + ".mixed.txt"}) {
            SCOPED_TRACE(copy.toStdString());
            // The same list before each: Grid layout keeps the general commands' keys as they
            // are.
            click(*ui().resetButton);
            click(*ui().gridButton);
            alerts().shown.clear();
            importAnswering(dataFile(copy.toUtf8().constData()));
            const Alert shown = message();
            if (!originalMessage) {
                originalMessage = shown;
                EXPECT_TRUE(shown.text.startsWith("160 hotkeys read, "));
            }
            EXPECT_EQ(shown.text, originalMessage->text);
            EXPECT_EQ(shown.informativeText, originalMessage->informativeText);
            EXPECT_EQ(shown.icon, originalMessage->icon);
            const QString target = tempPath("CustomKeys.txt");
            exportAnswering(target);
            EXPECT_EQ(bytesOf(target), golden(expectedExport));
        }
    }
}

TEST_F(ImportWindow, ImportKeepsTheStoreAsItWas) {
    const QByteArray store = bytesOf(storePath());
    importAnswering(dataFile("export-grid-layout.txt"));
    EXPECT_NE(editor().mainDic(), all_data());
    EXPECT_EQ(bytesOf(storePath()), store);
    EXPECT_EQ(storedMainDic(), all_data());
}

TEST_F(ImportWindow, ThePopUpShowsTheImportedKeyOfTheSelectedAbility) {
    clickRow(9);
    ASSERT_EQ(ui().keysPopup->currentText(), "E");
    importAnswering(dataFile("export-hand-set.txt"));
    EXPECT_EQ(ui().keysPopup->currentText(), "Z");
}

TEST_F(ImportWindow, AbilitiesTheFileLacksKeepTheirKeysAndTheMessageSaysSo) {
    clickRow(3);
    choose(*ui().keysPopup, "K");
    const QString file = tempPath("two.txt");
    writeFile(file, "// mine\r\n[CmdMove]\r\nHotkey=Q\r\n[Xunknown]\r\nHotkey=W\r\n");
    importAnswering(file);
    EXPECT_EQ(editor().mainDic()[0].at(new_hotkey), "Q");
    EXPECT_EQ(editor().mainDic()[3].at(new_hotkey), "K");
    EXPECT_EQ(message().text, "1 hotkey read, 1 changed; 1 section of the file is not in the "
                              "catalogue and was left out.");
    EXPECT_EQ(message().informativeText,
              "159 abilities have no key in the file and kept what they had.");
}

TEST_F(ImportWindow, AFileThatCannotBeReadChangesNothing) {
    clickRow(3);
    choose(*ui().keysPopup, "K");
    const auto before = editor().mainDic();
    importAnswering(tempPath("missing.txt"));
    EXPECT_EQ(message().text, "“missing.txt” could not be read.");
    EXPECT_TRUE(message().informativeText.endsWith("Nothing was changed."));
    EXPECT_EQ(message().icon, QMessageBox::Warning);
    EXPECT_EQ(editor().mainDic(), before);
}

TEST_F(ImportWindow, AFolderIsNoFileToRead) {
    ASSERT_TRUE(QDir(dir_.path()).mkpath("CustomKeys.txt"));
    importAnswering(tempPath("CustomKeys.txt"));
    EXPECT_EQ(message().text, "“CustomKeys.txt” could not be read.");
    EXPECT_EQ(message().icon, QMessageBox::Warning);
    EXPECT_EQ(message().informativeText,
              "It is a folder, not a regular file. Nothing was changed.");
    EXPECT_EQ(editor().mainDic(), all_data());
}

TEST_F(ImportWindow, ANamedPipeIsTurnedAwayWithoutWaitingForAWriter) {
    clickRow(3);
    choose(*ui().keysPopup, "K");
    const auto before = editor().mainDic();
    const QString pipe = tempPath("x.fifo");
    ASSERT_TRUE(makeNamedPipe(pipe));
    {
        // Should the import wait in open() for a writer, the watchdog is that writer after a
        // while, and the test fails instead of hanging.
        PipeWatchdog watchdog(pipe);
        importAnswering(pipe);
        EXPECT_FALSE(watchdog.fired()) << "the import waited on the named pipe";
    }
    EXPECT_EQ(message().text, "“x.fifo” could not be read.");
    EXPECT_EQ(message().informativeText,
              "It is a named pipe, not a regular file. Nothing was changed.");
    EXPECT_EQ(message().icon, QMessageBox::Warning);
    EXPECT_EQ(editor().mainDic(), before);
    EXPECT_TRUE(isNamedPipe(pipe));
}

TEST_F(ImportWindow, ASocketIsTurnedAway) {
    const BoundSocket socket(tempPath("keys.sock"));
    ASSERT_TRUE(socket.isBound());
    importAnswering(tempPath("keys.sock"));
    EXPECT_EQ(message().text, "“keys.sock” could not be read.");
    EXPECT_EQ(message().informativeText,
              "It is a socket, not a regular file. Nothing was changed.");
    EXPECT_EQ(editor().mainDic(), all_data());
}

TEST_F(ImportWindow, ADeviceIsTurnedAway) {
    for (const char* device : {"/dev/zero", "/dev/null"}) {
        alerts().shown.clear();
        importAnswering(QLatin1String(device));
        EXPECT_EQ(message().text,
                  QStringLiteral("“%1” could not be read.").arg(QLatin1String(device).mid(5)));
        EXPECT_EQ(message().informativeText,
                  "It is a character device, not a regular file. Nothing was changed.");
    }
    EXPECT_EQ(editor().mainDic(), all_data());
}

TEST_F(ImportWindow, AFileWithoutAnAbilityOfTheListChangesNothing) {
    clickRow(3);
    choose(*ui().keysPopup, "K");
    const auto before = editor().mainDic();
    const QString file = tempPath("notes.txt");
    writeFile(file, "\xEF\xBB\xBF[Hpal]\r\nHotkey=P\r\nsome notes\r\n");
    importAnswering(file);
    EXPECT_EQ(message().text, "“notes.txt” holds no hotkeys of the abilities in the list.");
    EXPECT_EQ(message().informativeText, "Nothing was changed.");
    EXPECT_EQ(editor().mainDic(), before);
}

TEST_F(ImportWindow, AnEmptyFileChangesNothing) {
    const QString file = tempPath("empty.txt");
    writeFile(file, "");
    importAnswering(file);
    EXPECT_EQ(message().text, "“empty.txt” holds no hotkeys of the abilities in the list.");
    EXPECT_EQ(editor().mainDic(), all_data());
}

TEST_F(ImportWindow, AFileTooLargeForHotkeysIsNotRead) {
    QByteArray bytes = bytesOf(dataFile("export-hand-set.txt"));
    bytes.append(QByteArray(4 * 1024 * 1024, '\n'));
    const QString file = tempPath("huge.txt");
    writeFile(file, bytes);
    importAnswering(file);
    EXPECT_EQ(message().text, "“huge.txt” is too large for a hotkey file.");
    EXPECT_EQ(editor().mainDic(), all_data());
}

TEST_F(ImportWindow, CancellingShowsNothingAndChangesNothing) {
    importAnswering(std::nullopt);
    EXPECT_TRUE(alerts().shown.empty());
    EXPECT_EQ(editor().mainDic(), all_data());
}

TEST_F(ImportWindow, TheDialogOpensAnExistingTextFileWhereTheUserSays) {
    const QString file = tempPath("keys.txt");
    writeFile(file, bytesOf(dataFile("export-hand-set.txt")));
    QSignalSpy finished(&exchange(), &FileExchangeController::importFinished);
    ui().actionImport->trigger();
    QFileDialog* dialog = openFileDialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog->fileMode(), QFileDialog::ExistingFile);
    ASSERT_FALSE(dialog->nameFilters().isEmpty());
    EXPECT_TRUE(dialog->nameFilters().first().contains("*.txt"));
    // The dialog does not block: the action returned while it is still open.
    EXPECT_TRUE(finished.isEmpty());
    dialog->setDirectory(dir_.path());
    auto* nameField = dialog->findChild<QLineEdit*>("fileNameEdit");
    ASSERT_NE(nameField, nullptr);
    nameField->setText("keys.txt");
    QTest::keyClick(nameField, Qt::Key_Return);
    ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    EXPECT_EQ(message().text, "160 hotkeys read, 3 changed.");
}

TEST_F(ImportWindow, TheDialogCancelledByThePlayerChangesNothing) {
    QSignalSpy finished(&exchange(), &FileExchangeController::importFinished);
    ui().actionImport->trigger();
    QFileDialog* dialog = openFileDialog();
    ASSERT_NE(dialog, nullptr);
    QTest::keyClick(dialog, Qt::Key_Escape);
    ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    EXPECT_TRUE(alerts().shown.empty());
    EXPECT_EQ(editor().mainDic(), all_data());
}

} // namespace
} // namespace tarnic::testing
