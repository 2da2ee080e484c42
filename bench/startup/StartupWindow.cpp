// What any program that shows the application's window from the application's store has to do,
// and nothing more: the window as the interface file builds it (every control, in the
// application's style), the stored list read from the XML property-list file through the same
// reader, and the ability table over that list. No controller, no platform (no X input, no
// keycodes), no one-copy check, no detail area filled in, no clash scan, no store compare. It
// quits once its table has painted, as the other two do.
//
// Its instruction count is a floor for the application itself: what the application does beyond
// it is what its own logic and its platform cost.

#include "QuitAfterFirstPaint.h"

#include "core/catalogue/Catalogue.h"
#include "gui/AbilityTableModel.h"
#include "gui/ApplicationStyle.h"
#include "gui/GuiResources.h"
#include "gui/MainWindow.h"
#include "store/UserDefaults.h"

#include <QApplication>
#include <QTableView>

#include <memory>
#include <optional>
#include <vector>

int main(int argc, char* argv[]) {
    QApplication qapp(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Tarnic"));
    QApplication::setApplicationName(QStringLiteral("Tarnic Pro"));
    tarnic::ApplicationStyle::install();
    tarnic::initGuiResources();

    std::unique_ptr<QSettings> store = tarnic::openUserDefaults();
    tarnic::UserDefaults defaults(*store);
    std::vector<tarnic::AbilityRecord> list = tarnic::all_data();
    if (std::optional<std::vector<tarnic::AbilityRecord>> stored = defaults.mainDic()) {
        list = std::move(*stored);
    } else {
        defaults.setMainDic(list);
    }

    tarnic::MainWindow window;
    auto* table = window.findChild<QTableView*>(QStringLiteral("tableView"));
    if (table == nullptr) {
        return 1;
    }
    tarnic::AbilityTableModel model(list);
    model.setColumns(table->property("columnIdentifiers").toStringList(),
                     table->property("columnTitles").toStringList());
    table->setModel(&model);
    tarnic::bench::QuitAfterFirstPaint quit(*table->viewport());

    window.show();
    return QApplication::exec();
}
