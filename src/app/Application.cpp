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

#include <mutex>

namespace tarnic {

namespace {

const QString kDesktopId = QStringLiteral("org.tarnic.TarnicPro");

// Opens the store on another thread and hands it over to this one, where it is used. A first
// start's store gets the catalogue there as well, just as the editor would store it when the
// view loads (it then finds the list already there): the write and its flushes to disk overlap
// the building of the window instead of holding up the first frame.
std::future<Application::OpenedStore> readStore() {
    QThread* const user = QThread::currentThread();
    return std::async(std::launch::async, [user] {
        Application::OpenedStore opened{openUserDefaults()};
        UserDefaults defaults(*opened.settings);
        if (!defaults.hasMainDic()) {
            defaults.setMainDic(all_data());
            opened.catalogueStored = true;
        }
        opened.settings->moveToThread(user);
        return opened;
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
      programOptions_(openProgramOptions()), editor_(*store_.settings, programOptions_.get()),
      // The import reports through the same seam as the version gate.
      fileExchange_(editor_, alerts()),
      inventoryPanel_(*store_.settings, *programOptions_, inventoryBindings_),
      tapRelay_([this](const SlotTap& tap) { inventoryPanel_.showTap(tap); }),
      remapperSession_(platform_),
      delegate_(*platform_.accessibilityTrust, options_.siteUrl, alerts()) {
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &delegate_,
                     &AppDelegate::applicationWillTerminate);
    window_.connectControllers(editor_, fileExchange_, inventoryPanel_);
    {
        // The relay is declared before the session, so it outlives every key the session hands
        // to the remapper.
        const std::lock_guard lock(remapperSession_.keyPathLock());
        remapperSession_.remapper().setTapListener(&tapRelay_);
    }
    QObject::connect(
        &inventoryPanel_, &InventoryPanelController::bindingsChanged, &inventoryPanel_,
        [this](const InventoryBindings& bindings) { remapperSession_.setBindings(bindings); });
    // A binding the panel stores takes along a list an earlier write could not store.
    QObject::connect(&inventoryPanel_, &InventoryPanelController::storeWritten, &editor_,
                     &EditorController::storeWritten);
}

Application::~Application() = default;

AlertPresenter& Application::alerts() {
    return options_.alerts != nullptr ? *options_.alerts : messageBoxes_;
}

void Application::setKeyNames() {
    editor_.setKeyNames(keyNames_->names());
    inventoryPanel_.setKeyNames(keyNames_->names());
}

void Application::windowWillClose() {
    // Queued: the loop ends after the event that asked for it has been handled.
    QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit,
                              Qt::QueuedConnection);
}

void Application::start() {
    // The keys are named as the player's layout prints them from the first frame on, and again
    // at every change of layout.
    keyNames_ = std::make_unique<LayoutKeyNames>(platform_.keyLabels.get());
    setKeyNames();
    QObject::connect(keyNames_.get(), &LayoutKeyNames::changed, &window_,
                     [this] { setKeyNames(); });
    // The view loads: the bindings before the list, as a store of the wrong type must end the
    // program the same way whichever key is damaged first.
    inventoryPanel_.loadBindings();
    if (store_.catalogueStored) {
        editor_.storeHoldsCatalogue();
    }
    editor_.viewDidLoad();
    fileExchange_.viewDidLoad();
    inventoryPanel_.viewDidLoad();
    // Hiding the application ends it, as closing the window does.
    QObject::connect(qGuiApp, &QGuiApplication::applicationStateChanged, &window_,
                     [](Qt::ApplicationState state) {
                         if (state == Qt::ApplicationHidden) {
                             windowWillClose();
                         }
                     });
    inventoryPanel_.showInventoryStatus(*platform_.accessibilityTrust);
    // The inventory remapper: watch the keys of other applications (key-down, then modifier
    // changes) and look for the game every 2 seconds. Neither is ever removed.
    remapperSession_.installObservers();
    gameDetectionTimer_ = std::make_unique<GameDetectionTimer>(remapperSession_, nullptr,
                                                               options_.gameDetectionInterval);
    // The tick reads whether the game runs under the key-path lock it takes anyway; a tick that
    // had to be skipped leaves the line as it was.
    QObject::connect(gameDetectionTimer_.get(), &GameDetectionTimer::gameLooked, &inventoryPanel_,
                     &InventoryPanelController::showGameRunning);
    window_.show();
    // From now on closing the window ends the application.
    QObject::connect(&window_, &MainWindow::closing, &window_, &Application::windowWillClose);
    AlertPresenter& alerts = this->alerts();
    // Launching finishes once the window is on the screen: the version check shows a busy cursor,
    // whose theme is read from disk, and waits for the site, and neither has a place in the
    // first frame.
    afterFirstPaint_ = std::make_unique<AfterFirstPaint>(
        *editor_.tableView().viewport(), options_.launchAtTheLatest,
        [this, &alerts, aside = storeSetAsideAs(*store_.settings)] {
            // Queued, so that it comes while the check waits for the site.
            QTimer::singleShot(0, &window_, [this, &alerts, aside] {
                QApplication::setWindowIcon(QIcon::fromTheme(kDesktopId));
                // Once, over the window: the player's list and bindings look lost until he reads
                // this.
                if (!aside.isEmpty()) {
                    alerts.show(storeSetAsideAlert(userDefaultsPath(), aside), &window_);
                }
            });
            delegate_.applicationDidFinishLaunching();
        });
}

} // namespace tarnic
