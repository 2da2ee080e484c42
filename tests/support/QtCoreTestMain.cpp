#include <QCoreApplication>

#include <gtest/gtest.h>

// The main of the test programs that talk to an X server of their own and show no widgets: an
// event loop for the child processes and the platform's event pump, and no window system.
int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
