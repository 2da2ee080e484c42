#include <QApplication>

#include <gtest/gtest.h>

// The panel is a widget: a QApplication first. Death tests re-run this program for the one
// test, so that the child starts from a clean QApplication of its own.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    ::testing::InitGoogleTest(&argc, argv);
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
