// The floor the application's start-up is measured against: a bare Qt program that shows a
// window of the application's size holding a 160-row, 4-column QTableWidget of short strings,
// and quits once the table has painted.

#include "QuitAfterFirstPaint.h"

#include <QApplication>
#include <QMainWindow>
#include <QTableWidget>
#include <QTableWidgetItem>

int main(int argc, char* argv[]) {
    QApplication qapp(argc, argv);

    QMainWindow window;
    window.resize(940, 640);
    auto* table = new QTableWidget(160, 4, &window);
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column) {
            table->setItem(row, column,
                           new QTableWidgetItem(QStringLiteral("r%1 c%2").arg(row).arg(column)));
        }
    }
    window.setCentralWidget(table);
    tarnic::bench::QuitAfterFirstPaint quit(*table->viewport());

    window.show();
    return QApplication::exec();
}
