#include "EditorFixture.h"

#include "ExpectedExport.h"
#include "core/catalogue/Catalogue.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

static void unregisterTemplate() {
    Q_CLEANUP_RESOURCE(defaultkeys);
}
static void registerTemplate() {
    Q_INIT_RESOURCE(defaultkeys);
}

namespace tarnic::testing {
namespace {

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

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
    std::string expected() { return expectedExport(vc().mainDic, shippedTemplate()); }

    QString target_;
};

TEST_F(Export, UntouchedListWritesEveryDefaultBlock) {
    exportAnswering(target_);
    const std::string file = bytesOf(target_).toStdString();
    EXPECT_EQ(file, expectedExport(all_data(), shippedTemplate()));
    // No byte-order mark, no carriage return, and the last block is followed only by what the
    // template has after its marker.
    EXPECT_NE(file.substr(0, 3), "\xEF\xBB\xBF");
    EXPECT_EQ(file.find('\r'), std::string::npos);
    const std::string template_ = shippedTemplate();
    const std::string tail = template_.substr(template_.find(mark) + std::string(mark).size());
    EXPECT_EQ(file.substr(file.size() - tail.size() - all_data().back().at(def).size()),
              all_data().back().at(def) + tail);
}

TEST_F(Export, HandSetRecordsWriteTheirEditedBlocks) {
    std::vector<AbilityRecord> list = all_data();
    const std::vector<std::pair<int, std::string>> choices = {{0, "Q"}, {9, "Z"}, {40, "M"}};
    for (const auto& [row, key] : choices) {
        clickRow(row);
        choose(*ui().keysPopup, QString::fromStdString(key));
        list[static_cast<std::size_t>(row)][new_edit] =
            filledByHand(list[static_cast<std::size_t>(row)], key);
    }
    exportAnswering(target_);
    EXPECT_EQ(bytesOf(target_).toStdString(), expectedExport(list, shippedTemplate()));
}

TEST_F(Export, GridLaidOutListWritesTheLetters) {
    click(*ui().gridButton);
    std::vector<AbilityRecord> list = all_data();
    const char* letters[] = {"Q", "W", "E", "R"};
    std::optional<std::string> previous = std::string();
    int run = 0;
    for (std::size_t i = 7; i < list.size(); ++i) {
        const auto owner = list[i].find(name_parent);
        const std::optional<std::string> current =
            owner == list[i].end() ? std::nullopt : std::optional<std::string>(owner->second);
        run = current == previous ? run + 1 : 0;
        previous = current;
        list[i][new_edit] = filledByHand(list[i], run < 4 ? letters[run] : "Q");
    }
    exportAnswering(target_);
    EXPECT_EQ(bytesOf(target_).toStdString(), expectedExport(list, shippedTemplate()));
}

TEST_F(Export, ResetRecordWritesItsDefaultBlockAgain) {
    clickRow(3);
    choose(*ui().keysPopup, "K");
    click(*ui().resetButton);
    exportAnswering(target_);
    EXPECT_EQ(bytesOf(target_).toStdString(), expectedExport(all_data(), shippedTemplate()));
}

TEST_F(Export, CancelWritesNothingAndKeepsTheText) {
    writeFile(target_, "my old keys\r\n");
    clickRow(0);
    choose(*ui().keysPopup, "W");
    exportAnswering(std::nullopt);
    EXPECT_EQ(bytesOf(target_), "my old keys\r\n");
    EXPECT_EQ(vc().result, expected());
    EXPECT_EQ(QDir(dir_.path()).entryList(QDir::Files), QStringList{"CustomKeys.txt"});
}

TEST_F(Export, SavingOverAnExistingFileReplacesItWhole) {
    writeFile(target_, QByteArray(200000, 'x'));
    exportAnswering(target_);
    EXPECT_EQ(bytesOf(target_).toStdString(), expected());
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
    EXPECT_EQ(vc().result, expected());
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
    EXPECT_EQ(bytesOf(target_).toStdString(), expected());
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
    // The dialog does not block: the click returned while it is still open.
    EXPECT_TRUE(finished.isEmpty());
    dialog->setDirectory(dir_.path());
    nameField->setText("CustomKeys");
    QTest::keyClick(nameField, Qt::Key_Return);
    ASSERT_TRUE(!finished.isEmpty() || finished.wait(5000));
    EXPECT_EQ(bytesOf(target_).toStdString(), expected());
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
