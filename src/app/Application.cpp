#include "app/Application.h"

#include "core/catalogue/Catalogue.h"
#include "shell/StoreNotices.h"
#include "shell/SiteAddress.h"
#include "store/ProgramOptions.h"
#include "store/UserDefaults.h"

#include <QApplication>
#include <QIcon>
#include <QThread>
#include <QTimer>

namespace tarnic {

namespace {

const QString kDesktopId = QStringLiteral("org.tarnic.TarnicPro");

// The first frame waits for nothing else; a window that opens covered still gets its icon soon.
constexpr std::chrono::milliseconds kIconAtTheLatest{500};

// Opens the store on another thread and hands it over to this one, where it is used. A first
// start's store gets the catalogue there as well, just as the controller would store it when the
// view loads (it then finds the list already there): the write and its flushes to disk overlap
// the building of the window instead of holding up the first frame.
std::future<std::unique_ptr<QSettings>> readStore() {
    QThread* const user = QThread::currentThread();
    return std::async(std::launch::async, [user] {
        std::unique_ptr<QSettings> store = openUserDefaults();
        UserDefaults defaults(*store);
        if (!defaults.hasMainDic()) {
            defaults.setMainDic(all_data());
        }
        store->moveToThread(user);
        return store;
    });
}

} // namespace

void setApplicationIdentity() {
    QApplication::setOrganizationName(QStringLiteral("Tarnic"));
    QApplication::setApplicationName(QStringLiteral("Tarnic Pro"));
    // Ties the window to its launcher and icon on the desktop.
    QGuiApplication::setDesktopFileName(kDesktopId);
}

Application::Options::Options() : siteUrl(siteBaseUrl()) {}

Application::Application(Platform platform, Options options)
    : options_(std::move(options)), fatalAlerts_(options_.alerts), storeReading_(readStore()),
      platform_(std::move(platform)), store_(FatalAlerts::take(storeReading_)),
      programOptions_(openProgramOptions()), controller_(*store_, *programOptions_),
      tapRelay_([this](const SlotTap& tap) { controller_.showTap(tap); }),
      remapperSession_(controller_.inventoryModels, controller_.inventoryOptions, platform_),
      delegate_(*platform_.accessibilityTrust, options_.siteUrl,
                options_.alerts != nullptr ? *options_.alerts : messageBoxes_) {
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &delegate_,
                     &AppDelegate::applicationWillTerminate);
    window_.connectController(controller_);
    remapperSession_.remapper().setTapListener(&tapRelay_);
    // The import reports through the same seam as the version gate.
    controller_.setAlerts(options_.alerts != nullptr ? *options_.alerts : messageBoxes_);
}

Application::~Application() = default;

void Application::start() {
    // The keys are named as the player's layout prints them from the first frame on, and again
    // at every change of layout.
    keyNames_ = std::make_unique<LayoutKeyNames>(platform_.keyLabels.get());
    controller_.setKeyNames(keyNames_->names());
    QObject::connect(keyNames_.get(), &LayoutKeyNames::changed, &controller_,
                     [this] { controller_.setKeyNames(keyNames_->names()); });
    controller_.viewDidLoad();
    controller_.showInventoryStatus(*platform_.accessibilityTrust);
    // The inventory remapper: watch the keys of other applications (key-down, then modifier
    // changes) and look for the game every 2 seconds. Neither is ever removed.
    remapperSession_.installObservers();
    gameDetectionTimer_ = std::make_unique<GameDetectionTimer>(remapperSession_, nullptr,
                                                               options_.gameDetectionInterval);
    QObject::connect(gameDetectionTimer_.get(), &GameDetectionTimer::ticked, &controller_,
                     [this] { controller_.showGameRunning(remapperSession_.remapper().isWarRun); });
    window_.show();
    controller_.viewDidAppear();
    AlertPresenter& alerts = options_.alerts != nullptr ? *options_.alerts : messageBoxes_;
    afterFirstPaint_ = std::make_unique<AfterFirstPaint>(
        *controller_.tableView->viewport(), kIconAtTheLatest,
        [this, &alerts, aside = storeSetAsideAs(*store_)] {
            QApplication::setWindowIcon(QIcon::fromTheme(kDesktopId));
            // Once, over the window: the player's list and bindings look lost until he reads this.
            if (!aside.isEmpty()) {
                alerts.show(storeSetAsideAlert(userDefaultsPath(), aside), &window_);
            }
        });
    QTimer::singleShot(0, &delegate_, &AppDelegate::applicationDidFinishLaunching);
}

} // namespace tarnic
