#include "app/Application.h"

#include "shell/SiteAddress.h"
#include "store/ProgramOptions.h"
#include "store/UserDefaults.h"

#include <QCoreApplication>
#include <QTimer>

namespace tarnic {

Application::Options::Options() : siteUrl(siteBaseUrl()) {}

Application::Application(Platform platform, Options options)
    : options_(std::move(options)), store_(openUserDefaults()),
      programOptions_(openProgramOptions()), platform_(std::move(platform)),
      controller_(*store_, *programOptions_),
      remapperSession_(controller_.inventoryModels, controller_.inventoryOptions, platform_),
      delegate_(*platform_.accessibilityTrust, options_.siteUrl,
                options_.alerts != nullptr ? *options_.alerts : messageBoxes_) {
    QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, &delegate_,
                     &AppDelegate::applicationWillTerminate);
    window_.connectController(controller_);
    // The import reports through the same seam as the version gate.
    controller_.setAlerts(options_.alerts != nullptr ? *options_.alerts : messageBoxes_);
}

Application::~Application() = default;

void Application::start() {
    controller_.viewDidLoad();
    controller_.showInventoryStatus(*platform_.accessibilityTrust);
    // The inventory remapper: watch the keys of other applications (key-down, then modifier
    // changes) and look for the game every 2 seconds. Neither is ever removed.
    remapperSession_.installObservers();
    gameDetectionTimer_ = std::make_unique<GameDetectionTimer>(remapperSession_, nullptr,
                                                               options_.gameDetectionInterval);
    window_.show();
    controller_.viewDidAppear();
    QTimer::singleShot(0, &delegate_, &AppDelegate::applicationDidFinishLaunching);
}

} // namespace tarnic
