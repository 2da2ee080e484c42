#include "shell/XvfbServer.h"

namespace tarnic::test {

XvfbServer::XvfbServer(const QStringList& extraArguments) {
    QStringList arguments = {QStringLiteral("-displayfd"), QStringLiteral("1"),
                             QStringLiteral("-noreset"),   QStringLiteral("-nolisten"),
                             QStringLiteral("tcp"),        QStringLiteral("-screen"),
                             QStringLiteral("0"),          QStringLiteral("640x480x24")};
    arguments += extraArguments;
    process_.start(QStringLiteral("Xvfb"), arguments);
    if (!process_.waitForStarted(10000)) {
        return;
    }
    // Xvfb writes its display number once it accepts connections.
    QByteArray output;
    for (int attempt = 0; attempt < 20 && !output.contains('\n'); ++attempt) {
        if (!process_.waitForReadyRead(1000) && process_.state() != QProcess::Running) {
            break;
        }
        output += process_.readAllStandardOutput();
    }
    bool ok = false;
    const int display = output.trimmed().toInt(&ok);
    if (ok) {
        displayName_ = QStringLiteral(":%1").arg(display);
    }
}

XvfbServer::~XvfbServer() {
    if (process_.state() == QProcess::NotRunning) {
        return;
    }
    process_.terminate();
    if (!process_.waitForFinished(5000)) {
        process_.kill();
        process_.waitForFinished(5000);
    }
}

QString XvfbServer::errorOutput() {
    return QString::fromLocal8Bit(process_.readAllStandardError());
}

} // namespace tarnic::test
