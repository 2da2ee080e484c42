#include "EditorFixture.h"

#include "store/UserDefaults.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

namespace tarnic::testing {

QByteArray golden(const char* name) {
    QFile file(QStringLiteral(TARNIC_SOURCE_DIR "/tests/data/") + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing golden file>");
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

void EditorFixture::SetUp() {
    ASSERT_TRUE(dir_.isValid());
}

void EditorFixture::TearDown() {
    shutDown();
}

void EditorFixture::launch() {
    launch(makeFakePlatform());
}

void EditorFixture::launch(Platform platform) {
    shutDown();
    Application::Options options;
    options.siteUrl.clear();
    options.gameDetectionInterval = kTestTickInterval;
    options.alerts = &alerts_;
    app_ = std::make_unique<Application>(std::move(platform), options);
    controls_ = std::make_unique<WindowControls>(app_->window());
    app_->start();
}

void EditorFixture::shutDown() {
    controls_.reset();
    app_.reset();
    // A quit asked for by a test that is over must not end the next test's event loop.
    QCoreApplication::removePostedEvents(QCoreApplication::instance(), QEvent::MetaCall);
}

QString EditorFixture::storePath() const {
    return userDefaultsPath();
}

std::optional<std::vector<AbilityRecord>> EditorFixture::storedMainDic() const {
    QSettings settings(storePath(), plistSettingsFormat());
    return UserDefaults(settings).mainDic();
}

std::optional<SlotBinding> EditorFixture::storedInventoryModel(int slot) const {
    QSettings settings(storePath(), plistSettingsFormat());
    return UserDefaults(settings).inventoryModel(slot);
}

bool EditorFixture::storeHasKey(const QString& key) const {
    QSettings settings(storePath(), plistSettingsFormat());
    return settings.contains(key);
}

QStringList EditorFixture::storeKeys() const {
    QSettings settings(storePath(), plistSettingsFormat());
    return settings.allKeys();
}

void EditorFixture::storeMainDic(const std::vector<AbilityRecord>& list) const {
    QSettings settings(storePath(), plistSettingsFormat());
    UserDefaults(settings).setMainDic(list);
    settings.sync();
}

void EditorFixture::storeInventoryModel(int slot, const SlotBinding& binding) const {
    QSettings settings(storePath(), plistSettingsFormat());
    UserDefaults(settings).setInventoryModel(slot, binding);
    settings.sync();
}

void EditorFixture::storeRaw(const QString& key, const QVariant& value) const {
    QSettings settings(storePath(), plistSettingsFormat());
    settings.setValue(key, value);
    settings.sync();
}

void EditorFixture::clickRow(int row) {
    QTableView& table = *ui().tableView;
    const QModelIndex index = table.model()->index(row, 0);
    table.scrollTo(index);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, table.visualRect(index).center());
}

void EditorFixture::click(QAbstractButton& button) {
    QTest::mouseClick(&button, Qt::LeftButton, {}, button.rect().center());
}

void EditorFixture::choose(QComboBox& popup, const QString& title) {
    const int target = popup.findText(title);
    ASSERT_GE(target, 0) << title.toStdString();
    // Open the list, walk to the item with the keyboard and take it with Return.
    popup.showPopup();
    QAbstractItemView* list = popup.view();
    QTest::keyClick(list, Qt::Key_Home);
    for (int i = 0; i < target; ++i) {
        QTest::keyClick(list, Qt::Key_Down);
    }
    ASSERT_EQ(list->currentIndex().row(), target);
    QTest::keyClick(list, Qt::Key_Return);
    ASSERT_EQ(popup.currentIndex(), target);
}

} // namespace tarnic::testing
