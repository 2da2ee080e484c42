#include <QCoreApplication>

#include <gtest/gtest.h>

// QSettings and QStandardPaths want an application object, as they have in the program.
int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
