#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>

namespace tarnic::test {

// A child process whose standard output is read line by line, with bounded waits for the line
// the test expects. Its standard error goes to the test's, or is kept for the test to read.
// Killed when destroyed.
class LineProcess {
public:
    enum class Errors { Forward, Keep };

    LineProcess() = default;
    ~LineProcess();
    LineProcess(const LineProcess&) = delete;
    LineProcess& operator=(const LineProcess&) = delete;

    bool start(const QString& program, const QStringList& arguments,
               const QProcessEnvironment& environment, Errors errors = Errors::Forward);
    // Kills the child (SIGKILL) and waits for it.
    void stop();

    qint64 processId() const { return process_.processId(); }
    // Waits up to `timeout` for the child to end by itself; true if it did. Its exit status is
    // then in exitedNormally() and exitCode().
    bool waitForExit(std::chrono::milliseconds timeout);
    bool exitedNormally() const { return process_.exitStatus() == QProcess::NormalExit; }
    int exitCode() const { return process_.exitCode(); }

    // With Errors::Keep: the child's standard error so far (reads what is waiting).
    QString errorOutput();

    // The index of the first line at or after `from` that `match` accepts, waiting up to
    // `timeout` for it to come; -1 if it does not.
    int waitFor(const std::function<bool(const QString&)>& match, int from,
                std::chrono::milliseconds timeout);
    int waitForLine(const QString& line, int from, std::chrono::milliseconds timeout);
    int waitForPrefix(const QString& prefix, int from, std::chrono::milliseconds timeout);

    // Every complete line so far (reads what is waiting, without blocking).
    const QStringList& lines();
    QString transcript();

private:
    void readAvailable();

    QProcess process_;
    QStringList lines_;
    QByteArray partial_;
    QByteArray errors_;
};

} // namespace tarnic::test
