#include "store/ProgramOptions.h"

#include "files/RegularFileReader.h"

#include <QStandardPaths>

#include <cstdio>

namespace tarnic {

namespace {

const QString kOnlyWhileGameInFront = QStringLiteral("InventoryKeys/onlyWhileGameInFront");
const QString kPauseWhileTypingInChat = QStringLiteral("InventoryKeys/pauseWhileTypingInChat");
const QString kGridFollowsKeyboard = QStringLiteral("GridLayout/followsKeyboard");

// "true" and "false" as QSettings writes them; anything else is off.
bool isOn(const QSettings& settings, const QString& key) {
    const QVariant value = settings.value(key);
    return value.typeId() == QMetaType::Bool
               ? value.toBool()
               : value.toString().compare(QStringLiteral("true"), Qt::CaseInsensitive) == 0;
}

} // namespace

QString programOptionsPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Tarnic/Tarnic Pro Options.conf");
}

std::unique_ptr<QSettings> openProgramOptions() {
    const QString path = programOptionsPath();
    // QSettings would wait for ever to open a named pipe, and read a device as a file. Anything
    // but a regular file is left as it is, never opened: the options start off and live in memory
    // only (a settings object without a file keeps nothing).
    const FileContents found = RegularFileReader().check(path);
    if (found.status == FileContents::Status::NotRegular) {
        std::fprintf(stderr,
                     "Tarnic Pro could not read its options file \"%s\": %s. The options start "
                     "off, and changes to them are not kept.\n",
                     path.toLocal8Bit().constData(), found.reason.toLocal8Bit().constData());
        std::fflush(stderr);
        return std::make_unique<QSettings>(QString(), QSettings::IniFormat);
    }
    auto settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    settings->setAtomicSyncRequired(true);
    return settings;
}

ProgramOptions::ProgramOptions(QSettings& settings) : settings_(settings) {}

InventoryOptions ProgramOptions::inventoryOptions() const {
    InventoryOptions options;
    options.onlyWhileGameInFront = isOn(settings_, kOnlyWhileGameInFront);
    options.pauseWhileTypingInChat = isOn(settings_, kPauseWhileTypingInChat);
    return options;
}

void ProgramOptions::setOnlyWhileGameInFront(bool on) {
    set(kOnlyWhileGameInFront, on);
}

void ProgramOptions::setPauseWhileTypingInChat(bool on) {
    set(kPauseWhileTypingInChat, on);
}

bool ProgramOptions::gridFollowsKeyboard() const {
    return isOn(settings_, kGridFollowsKeyboard);
}

void ProgramOptions::setGridFollowsKeyboard(bool on) {
    set(kGridFollowsKeyboard, on);
}

void ProgramOptions::set(const QString& key, bool on) {
    settings_.setValue(key, on);
    settings_.sync();
}

} // namespace tarnic
