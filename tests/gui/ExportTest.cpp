#include "EditorFixture.h"

#include "support/PlainUserThread.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <sys/stat.h>

static void unregisterTemplate() {
    Q_CLEANUP_RESOURCE(defaultkeys);
}
static void registerTemplate() {
    Q_INIT_RESOURCE(defaultkeys);
}

namespace tarnic::testing {
namespace {

class Export : public EditorFixture {
protected:
    void SetUp() override {
        EditorFixture::SetUp();
        launch();
        target_ = tempPath("CustomKeys.txt");
    }
    // Clicks Export and answers the save dialog; returns once the answer has been handled.
    void exportAnswering(std::optional<QString> path) {
        QSignalSpy finished(&exchange(), &FileExchangeController::exportFinished);
        exchange().fileDialog().setNextAnswer(std::move(path));
        click(*ui().exportButton);
        ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    }
    // What the untouched list exports to.
    static QByteArray expected() { return golden("export-untouched.txt"); }
    // One alert came, naming the file, its folder and the system's reason.
    void expectFailureAlert(const QString& name, const QString& folder, const QString& reason) {
        ASSERT_EQ(alerts().shown.size(), 1U);
        const Alert& alert = alerts().shown[0];
        EXPECT_EQ(alert.text, QStringLiteral("\u201C%1\u201D could not be saved.").arg(name));
        EXPECT_TRUE(alert.informativeText.contains(folder)) << alert.informativeText.toStdString();
        EXPECT_TRUE(alert.informativeText.contains(reason, Qt::CaseInsensitive))
            << alert.informativeText.toStdString();
        EXPECT_EQ(alert.icon, QMessageBox::Warning);
        EXPECT_EQ(alert.buttons, QStringList{"OK"});
    }
    // An ordinary user must reach the folders the test makes inside its own.
    static bool openToEveryone(const QString& path) {
        return ::chmod(QFile::encodeName(path).constData(), 0755) == 0;
    }

    QString target_;
};

TEST_F(Export, UntouchedListWritesEveryDefaultBlock) {
    exportAnswering(target_);
    EXPECT_EQ(bytesOf(target_), golden("export-untouched.txt"));
}

TEST_F(Export, HandSetRecordsWriteTheirEditedBlocks) {
    // Move Q, Aerial Shackles Z, Unstable Concoction M: the list the golden file was made from.
    const std::vector<std::pair<int, QString>> choices = {{0, "Q"}, {9, "Z"}, {40, "M"}};
    for (const auto& [row, key] : choices) {
        clickRow(row);
        choose(*ui().keysPopup, key);
    }
    exportAnswering(target_);
    EXPECT_EQ(bytesOf(target_), golden("export-hand-set.txt"));
}

TEST_F(Export, GridLaidOutListWritesTheLetters) {
    click(*ui().gridButton);
    exportAnswering(target_);
    EXPECT_EQ(bytesOf(target_), golden("export-grid-layout.txt"));
}

TEST_F(Export, ResetRecordWritesItsDefaultBlockAgain) {
    clickRow(3);
    choose(*ui().keysPopup, "K");
    click(*ui().resetButton);
    exportAnswering(target_);
    EXPECT_EQ(bytesOf(target_), expected());
}

TEST_F(Export, CancelWritesNothingAndKeepsTheText) {
    writeFile(target_, "my old keys\r\n");
    exportAnswering(std::nullopt);
    EXPECT_EQ(bytesOf(target_), "my old keys\r\n");
    EXPECT_EQ(QByteArray::fromStdString(exchange().result()), expected());
    EXPECT_EQ(QDir(dir_.path()).entryList(QDir::Files), QStringList{"CustomKeys.txt"});
}

TEST_F(Export, SavingOverAnExistingFileReplacesItWhole) {
    writeFile(target_, QByteArray(200000, 'x'));
    exportAnswering(target_);
    EXPECT_EQ(bytesOf(target_), expected());
}

TEST_F(Export, TwoExportsInARowWriteTheSameFile) {
    const QString second = tempPath("again.txt");
    exportAnswering(target_);
    exportAnswering(second);
    EXPECT_EQ(bytesOf(target_), bytesOf(second));
}

TEST_F(Export, ExportChangesNeitherTheListNorTheStore) {
    clickRow(8);
    choose(*ui().keysPopup, "J");
    const auto list = editor().mainDic();
    const QByteArray store = bytesOf(storePath());
    exportAnswering(target_);
    EXPECT_EQ(editor().mainDic(), list);
    EXPECT_EQ(bytesOf(storePath()), store);
}

TEST_F(Export, FailedWriteUnderARegularFileChangesNothingAndSaysWhy) {
    const QString blocker = tempPath("not-a-folder");
    writeFile(blocker, "a plain file\n");
    exportAnswering(blocker + "/CustomKeys.txt");
    EXPECT_EQ(bytesOf(blocker), "a plain file\n");
    EXPECT_EQ(QByteArray::fromStdString(exchange().result()), expected());
    expectFailureAlert("CustomKeys.txt", blocker, "Not a directory");
}

TEST_F(Export, FailedWriteOverAFolderLeavesTheFolderAndItsFileIntact) {
    ASSERT_TRUE(QDir(dir_.path()).mkpath("CustomKeys.txt"));
    const QString inside = target_ + "/keep.txt";
    writeFile(inside, "kept\n");
    exportAnswering(target_);
    EXPECT_TRUE(QFileInfo(target_).isDir());
    EXPECT_EQ(bytesOf(inside), "kept\n");
    EXPECT_EQ(QDir(target_).entryList(QDir::Files | QDir::Hidden), QStringList{"keep.txt"});
    EXPECT_EQ(QDir(dir_.path()).entryList(QDir::Files | QDir::Hidden), QStringList{});
    ASSERT_EQ(alerts().shown.size(), 1U);
    EXPECT_TRUE(alerts().shown[0].text.contains("CustomKeys.txt"));
}

TEST_F(Export, IntoAReadOnlyFolderSaysSoAndWritesNothing) {
    const QString folder = tempPath("read-only");
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_TRUE(openToEveryone(dir_.path()));
    ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0555), 0);
    {
        const PlainUserThread player;
        ASSERT_TRUE(player.isValid());
        exportAnswering(folder + "/CustomKeys.txt");
    }
    EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{});
    expectFailureAlert("CustomKeys.txt", folder, "Permission denied");
}

TEST_F(Export, OverAReadOnlyFileAfterReplaceSaysSoAndKeepsTheFile) {
    const QString folder = tempPath("writable");
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_TRUE(openToEveryone(dir_.path()));
    ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0777), 0);
    const QString old = folder + "/CustomKeys.txt";
    writeFile(old, "my old keys\r\n");
    ASSERT_EQ(::chmod(QFile::encodeName(old).constData(), 0444), 0);
    {
        const PlainUserThread player;
        ASSERT_TRUE(player.isValid());
        exportAnswering(old);
    }
    EXPECT_EQ(bytesOf(old), "my old keys\r\n");
    EXPECT_EQ(QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{"CustomKeys.txt"});
    expectFailureAlert("CustomKeys.txt", folder, "not writable");
}

TEST_F(Export, IntoAFolderDeletedWhileTheDialogWasOpenSaysSo) {
    const QString folder = tempPath("gone");
    ASSERT_TRUE(QDir().mkpath(folder));
    QSignalSpy finished(&exchange(), &FileExchangeController::exportFinished);
    exchange().fileDialog().setNextAnswer(folder + "/CustomKeys.txt");
    click(*ui().exportButton);
    // The answer is on its way; the folder goes before it arrives.
    ASSERT_TRUE(finished.isEmpty());
    ASSERT_TRUE(QDir(folder).removeRecursively());
    ASSERT_TRUE(finished.wait(5000));
    EXPECT_FALSE(QFileInfo::exists(folder));
    expectFailureAlert("CustomKeys.txt", folder, "No such file or directory");
}

TEST_F(Export, ASuccessfulExportShowsNothing) {
    exportAnswering(target_);
    EXPECT_TRUE(alerts().shown.empty());
}

TEST_F(Export, MissingTemplateWritesAnEmptyFile) {
    unregisterTemplate();
    launch();
    registerTemplate();
    writeFile(target_, "old");
    exportAnswering(target_);
    EXPECT_TRUE(QFileInfo::exists(target_));
    EXPECT_EQ(bytesOf(target_), "");
}

TEST_F(Export, ShortcutExportsToo) {
    QSignalSpy finished(&exchange(), &FileExchangeController::exportFinished);
    exchange().fileDialog().setNextAnswer(target_);
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window(), 5000));
    QTest::keyClick(&window(), Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    EXPECT_EQ(bytesOf(target_), expected());
}

TEST_F(Export, DialogProposesCustomKeysAsATextFileAndWritesWhereTheUserSays) {
    QSignalSpy finished(&exchange(), &FileExchangeController::exportFinished);
    click(*ui().exportButton);
    QFileDialog* dialog = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* candidate = qobject_cast<QFileDialog*>(widget);
            candidate && widget->isVisible()) {
            dialog = candidate;
        }
    }
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialog->defaultSuffix(), "txt");
    ASSERT_EQ(dialog->nameFilters().size(), 1);
    EXPECT_TRUE(dialog->nameFilters().first().contains("*.txt"));
    auto* nameField = dialog->findChild<QLineEdit*>("fileNameEdit");
    ASSERT_NE(nameField, nullptr);
    EXPECT_EQ(nameField->text(), "CustomKeys");
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    EXPECT_TRUE(dialog->directory().absolutePath() == QDir(documents).absolutePath() ||
                dialog->directory().absolutePath() == QDir::home().absolutePath())
        << dialog->directory().absolutePath().toStdString();
    // The dialog does not block: the click returned while it is still open.
    EXPECT_TRUE(finished.isEmpty());
    dialog->setDirectory(dir_.path());
    nameField->setText("CustomKeys");
    QTest::keyClick(nameField, Qt::Key_Return);
    ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    EXPECT_EQ(bytesOf(target_), expected());
}

TEST_F(Export, DialogCancelledByThePlayerWritesNothing) {
    QSignalSpy finished(&exchange(), &FileExchangeController::exportFinished);
    click(*ui().exportButton);
    QFileDialog* dialog = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* candidate = qobject_cast<QFileDialog*>(widget);
            candidate && widget->isVisible()) {
            dialog = candidate;
        }
    }
    ASSERT_NE(dialog, nullptr);
    dialog->setDirectory(dir_.path());
    QTest::keyClick(dialog, Qt::Key_Escape);
    ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    EXPECT_FALSE(QFileInfo::exists(target_));
}

} // namespace
} // namespace tarnic::testing
