#include "store/ProgramOptions.h"

#include <QStandardPaths>

namespace tarnic {

namespace {

const QString kOnlyWhileGameInFront = QStringLiteral("InventoryKeys/onlyWhileGameInFront");
const QString kPauseWhileTypingInChat = QStringLiteral("InventoryKeys/pauseWhileTypingInChat");

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
    auto settings = std::make_unique<QSettings>(programOptionsPath(), QSettings::IniFormat);
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

void ProgramOptions::set(const QString& key, bool on) {
    settings_.setValue(key, on);
    settings_.sync();
}

} // namespace tarnic
