#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

namespace tarnic::test {

// A private Xvfb on a display number it picks itself (-displayfd), started in the constructor
// and stopped in the destructor. -noreset keeps it up when its last client leaves.
class XvfbServer {
public:
    explicit XvfbServer(const QStringList& extraArguments = {});
    ~XvfbServer();
    XvfbServer(const XvfbServer&) = delete;
    XvfbServer& operator=(const XvfbServer&) = delete;

    bool isRunning() const { return !displayName_.isEmpty(); }
    // ":<n>", or empty when the server did not come up.
    const QString& displayName() const { return displayName_; }
    QString errorOutput();

private:
    QProcess process_;
    QString displayName_;
};

} // namespace tarnic::test
