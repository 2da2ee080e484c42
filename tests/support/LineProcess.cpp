#include "support/LineProcess.h"

#include "support/ChildProcess.h"

#include <algorithm>

namespace tarnic::test {

LineProcess::~LineProcess() {
    stop();
}

bool LineProcess::start(const QString& program, const QStringList& arguments,
                        const QProcessEnvironment& environment, Errors errors) {
    // A fresh start: lines of an earlier run are gone.
    lines_.clear();
    partial_.clear();
    errors_.clear();
    endWithTest(process_);
    process_.setProcessEnvironment(environment);
    process_.setProcessChannelMode(errors == Errors::Forward ? QProcess::ForwardedErrorChannel
                                                             : QProcess::SeparateChannels);
    process_.start(program, arguments);
    return process_.waitForStarted(10000);
}

bool LineProcess::waitForExit(std::chrono::milliseconds timeout) {
    // Reads both pipes meanwhile, so that a child with much to say is never stalled on them.
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (process_.state() != QProcess::NotRunning) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0) {
            return false;
        }
        process_.waitForFinished(static_cast<int>(std::min<long long>(left.count(), 50)));
        readAvailable();
    }
    readAvailable();
    return true;
}

QString LineProcess::errorOutput() {
    readAvailable();
    return QString::fromUtf8(errors_);
}

void LineProcess::stop() {
    if (process_.state() != QProcess::NotRunning) {
        process_.kill();
        process_.waitForFinished(5000);
    }
}

void LineProcess::readAvailable() {
    // Takes what the pipe holds now; without it the child could fill the pipe and stall.
    if (process_.state() == QProcess::Running) {
        process_.waitForReadyRead(0);
    }
    partial_ += process_.readAllStandardOutput();
    errors_ += process_.readAllStandardError();
    qsizetype newline = 0;
    while ((newline = partial_.indexOf('\n')) >= 0) {
        // Windows programs run by Wine end their lines with CR LF.
        QByteArray line = partial_.left(newline);
        if (line.endsWith('\r')) {
            line.chop(1);
        }
        lines_.append(QString::fromUtf8(line));
        partial_.remove(0, newline + 1);
    }
}

int LineProcess::waitFor(const std::function<bool(const QString&)>& match, int from,
                         std::chrono::milliseconds timeout) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    int next = from;
    for (;;) {
        readAvailable();
        for (; next < lines_.size(); ++next) {
            if (match(lines_[next])) {
                return next;
            }
        }
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0 || process_.state() == QProcess::NotRunning) {
            readAvailable();
            for (; next < lines_.size(); ++next) {
                if (match(lines_[next])) {
                    return next;
                }
            }
            return -1;
        }
        process_.waitForReadyRead(static_cast<int>(left.count()));
    }
}

int LineProcess::waitForLine(const QString& line, int from, std::chrono::milliseconds timeout) {
    return waitFor([&](const QString& l) { return l == line; }, from, timeout);
}

int LineProcess::waitForPrefix(const QString& prefix, int from, std::chrono::milliseconds timeout) {
    return waitFor([&](const QString& l) { return l.startsWith(prefix); }, from, timeout);
}

const QStringList& LineProcess::lines() {
    readAvailable();
    return lines_;
}

QString LineProcess::transcript() {
    return lines().join('\n');
}

} // namespace tarnic::test
