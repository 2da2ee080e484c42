#include <QApplication>

#include <gtest/gtest.h>

namespace {

QtMessageHandler defaultHandler = nullptr;

// The offscreen platform says, for every popup it shows, which window features it lacks.
void quietOffscreenNotes(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtWarningMsg && text.startsWith(QLatin1String("This plugin does not support"))) {
        return;
    }
    if (defaultHandler != nullptr) {
        defaultHandler(type, context, text);
    }
}

} // namespace

// The main of every Qt test program: one application object for all its tests, named as the
// program names itself, with widgets drawn offscreen unless the environment says otherwise.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    defaultHandler = qInstallMessageHandler(quietOffscreenNotes);
    ::testing::InitGoogleTest(&argc, argv);
    // Death tests start the test program afresh, so the child has its own application object.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Tarnic"));
    QApplication::setApplicationName(QStringLiteral("Tarnic Pro"));
    return RUN_ALL_TESTS();
}
