#include "EditorFixture.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

static void unregisterTemplate() {
    Q_CLEANUP_RESOURCE(defaultkeys);
}
static void registerTemplate() {
    Q_INIT_RESOURCE(defaultkeys);
}

namespace tarnic::testing {
namespace {

QSet<QWidget*> visibleWindows() {
    QSet<QWidget*> shown;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible()) {
            shown.insert(widget);
        }
    }
    return shown;
}

class Export : public EditorFixture {
protected:
    void SetUp() override {
        EditorFixture::SetUp();
        launch();
        target_ = tempPath("CustomKeys.txt");
    }
    // Clicks Export and answers the save dialog; returns once the answer has been handled.
    void exportAnswering(std::optional<QString> path) {
        QSignalSpy finished(&vc(), &ViewController::exportFinished);
        vc().fileDialog().setNextAnswer(std::move(path));
        click(*ui().exportButton);
        ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    }
    // What the untouched list exports to.
    static QByteArray expected() { return golden("export-untouched.txt"); }

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
    EXPECT_EQ(QByteArray::fromStdString(vc().result), expected());
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
    const auto list = vc().mainDic;
    const QByteArray store = bytesOf(storePath());
    exportAnswering(target_);
    EXPECT_EQ(vc().mainDic, list);
    EXPECT_EQ(bytesOf(storePath()), store);
}

TEST_F(Export, FailedWriteUnderARegularFileChangesNothingAndShowsNothing) {
    const QString blocker = tempPath("not-a-folder");
    writeFile(blocker, "a plain file\n");
    const auto windows = visibleWindows();
    exportAnswering(blocker + "/CustomKeys.txt");
    EXPECT_EQ(bytesOf(blocker), "a plain file\n");
    EXPECT_EQ(visibleWindows(), windows);
    EXPECT_EQ(QByteArray::fromStdString(vc().result), expected());
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
    QSignalSpy finished(&vc(), &ViewController::exportFinished);
    vc().fileDialog().setNextAnswer(target_);
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window(), 5000));
    QTest::keyClick(&window(), Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    EXPECT_EQ(bytesOf(target_), expected());
}

TEST_F(Export, DialogProposesCustomKeysAsATextFileAndWritesWhereTheUserSays) {
    QSignalSpy finished(&vc(), &ViewController::exportFinished);
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
    QSignalSpy finished(&vc(), &ViewController::exportFinished);
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
