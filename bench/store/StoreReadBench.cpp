// How long opening the store takes, as the program does at start (openUserDefaults), for a store
// of 20,000 nested arrays, for garbage of the same size, and for the program's own store. The
// nested store must cost no more than the garbage: both are set aside unread.
#include "core/catalogue/Catalogue.h"
#include "store/PlistFormat.h"
#include "store/StoredTypes.h"
#include "store/UserDefaults.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

QByteArray plistXml(const QByteArray& body) {
    return QByteArrayLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                             "<plist version=\"1.0\">\n") +
           body + QByteArrayLiteral("\n</plist>\n");
}

QByteArray nestedArrays(int levels) {
    return plistXml(QByteArrayLiteral("<dict><key>mainDic</key>") +
                    QByteArrayLiteral("<array>").repeated(levels) +
                    QByteArrayLiteral("</array>").repeated(levels) + QByteArrayLiteral("</dict>"));
}

QByteArray garbage(qsizetype size) {
    QByteArray bytes(size, '\0');
    QRandomGenerator generator(17);
    for (char& byte : bytes) {
        byte = static_cast<char>(generator.bounded(256));
    }
    // Not "bplist00", and no '<' to start an XML list: what a damaged disk might leave.
    bytes[0] = 'x';
    return bytes;
}

// The median time of `runs` opens of a store holding `bytes`, written afresh before each (an
// unreadable one is set aside by the open), in milliseconds.
double medianOpenMs(const QString& folder, const QByteArray& bytes, int runs) {
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        QDir(folder).removeRecursively();
        QDir().mkpath(folder);
        QFile file(tarnic::userDefaultsPath());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file.fileName()));
            std::exit(1);
        }
        file.close();
        const auto start = Clock::now();
        const auto store = tarnic::openUserDefaults();
        const auto end = Clock::now();
        times.push_back(std::chrono::duration<double, std::milli>(end - start).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const int runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 9;
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    const QString folder = home.path() + QStringLiteral("/Tarnic");
    // Each set-aside store says so on standard error; the table goes to standard output.
    std::freopen("/dev/null", "w", stderr);

    QSettings::SettingsMap own;
    own.insert(QStringLiteral("mainDic"), tarnic::abilityListToStored(tarnic::all_data()));
    const QByteArray ownStore = tarnic::settingsToPlist(own);
    const QByteArray deep = nestedArrays(20000);
    const QByteArray noise = garbage(deep.size());

    std::printf("Opening the store (openUserDefaults), median of %d runs\n", runs);
    std::printf("%-38s %10s %12s\n", "store", "bytes", "ms");
    const auto row = [&](const char* name, const QByteArray& bytes) {
        std::printf("%-38s %10lld %12.2f\n", name, static_cast<long long>(bytes.size()),
                    medianOpenMs(folder, bytes, runs));
        std::fflush(stdout);
    };
    row("20,000 nested arrays (set aside)", deep);
    row("garbage of the same size (set aside)", noise);
    row("50,000 nested arrays (set aside)", nestedArrays(50000));
    row("the program's own store (read)", ownStore);
    return 0;
}
