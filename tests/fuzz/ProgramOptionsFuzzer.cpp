// libFuzzer target: any bytes as the options file ("Tarnic Pro Options.conf"), read through
// QSettings' INI format as the program reads it, then one option switched the way the check box
// switches it. A damaged file costs only the options: reading never faults, switching one option
// never changes the other, and what was switched reads back after the file is opened afresh.
#include "store/ProgramOptions.h"

#include <QFile>
#include <QSettings>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

namespace {

void check(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "options file broke its promise: %s\n", what);
        std::abort();
    }
}

// One file in a folder of this process's own under TMPDIR, rewritten for every input and removed
// at exit.
std::string tempFolder;
std::string tempFile;

void removeFiles() {
    std::remove(tempFile.c_str());
    rmdir(tempFolder.c_str());
}

const QString& optionsFile() {
    static const QString path = [] {
        const char* tmp = std::getenv("TMPDIR");
        tempFolder = std::string(tmp != nullptr && *tmp != '\0' ? tmp : "/tmp") +
                     "/tarnic-fuzz-options-XXXXXX";
        check(mkdtemp(tempFolder.data()) != nullptr, "no temporary folder");
        tempFile = tempFolder + "/options.conf";
        std::atexit(removeFiles);
        return QString::fromStdString(tempFile);
    }();
    return path;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString& path = optionsFile();
    {
        QFile file(path);
        check(file.open(QIODevice::WriteOnly | QIODevice::Truncate), "cannot write the input");
        check(file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size)) ==
                  static_cast<qint64>(size),
              "cannot write the input");
    }
    tarnic::InventoryOptions before;
    {
        QSettings settings(path, QSettings::IniFormat);
        settings.setAtomicSyncRequired(true); // as the program opens it
        tarnic::ProgramOptions options(settings);
        before = options.inventoryOptions();
        options.setOnlyWhileGameInFront(!before.onlyWhileGameInFront);
        if (settings.status() != QSettings::NoError) {
            return 0; // not written: nothing to read back
        }
    }
    QSettings settings(path, QSettings::IniFormat);
    const tarnic::InventoryOptions after = tarnic::ProgramOptions(settings).inventoryOptions();
    check(after.onlyWhileGameInFront != before.onlyWhileGameInFront, "the switch did not stick");
    check(after.pauseWhileTypingInChat == before.pauseWhileTypingInChat,
          "switching one option changed the other");
    return 0;
}
