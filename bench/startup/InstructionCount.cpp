#include "InstructionCount.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <sstream>

namespace tarnic::bench {

namespace {

long long monotonicMs() {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<long long>(now.tv_sec) * 1000LL + now.tv_nsec / 1000000;
}

// Valgrind ends with "==<pid>== Collected : <count>" for the process it ran, and with one such
// line of their own for processes that process forked (a fork without exec stays under
// valgrind), so the line is picked by the process id.
long long collectedBy(const std::string& report, pid_t pid) {
    const std::string prefix = "==" + std::to_string(pid) + "== Collected : ";
    std::istringstream lines(report);
    std::string line;
    while (std::getline(lines, line)) {
        if (line.rfind(prefix, 0) == 0) {
            return std::strtoll(line.c_str() + prefix.size(), nullptr, 10);
        }
    }
    return -1;
}

} // namespace

long long countInstructions(const std::vector<std::string>& command,
                            const std::vector<std::string>& environment, int timeoutMs) {
    std::vector<std::string> words = {"valgrind", "--tool=callgrind", "--dump-instr=no",
                                      "--callgrind-out-file=/dev/null"};
    words.insert(words.end(), command.begin(), command.end());
    std::vector<char*> argv;
    for (const std::string& word : words) {
        argv.push_back(const_cast<char*>(word.c_str()));
    }
    argv.push_back(nullptr);
    std::vector<char*> envp;
    for (const std::string& entry : environment) {
        envp.push_back(const_cast<char*>(entry.c_str()));
    }
    envp.push_back(nullptr);

    int report[2];
    if (pipe2(report, O_CLOEXEC) != 0) {
        return -1;
    }
    const pid_t pid = fork();
    if (pid == 0) {
        const int devNull = open("/dev/null", O_RDWR);
        dup2(devNull, STDIN_FILENO);
        dup2(devNull, STDOUT_FILENO);
        dup2(report[1], STDERR_FILENO);
        execvpe(argv[0], argv.data(), envp.data());
        _exit(127);
    }
    close(report[1]);
    if (pid < 0) {
        close(report[0]);
        return -1;
    }

    // The summary is in the pipe by the time the process has ended; the pipe itself may stay open
    // longer, in a helper the program started and left running.
    const int exitFd = static_cast<int>(syscall(SYS_pidfd_open, pid, 0));
    fcntl(report[0], F_SETFL, O_NONBLOCK);
    std::string text;
    auto drain = [&] {
        char buffer[4096];
        ssize_t got = 0;
        while ((got = read(report[0], buffer, sizeof buffer)) > 0) {
            text.append(buffer, static_cast<std::size_t>(got));
        }
        return got == 0; // end of the pipe
    };
    const long long deadline = monotonicMs() + timeoutMs;
    bool exited = false;
    bool pipeOpen = true;
    while (!exited && exitFd >= 0) {
        const long long left = deadline - monotonicMs();
        if (left <= 0) {
            break;
        }
        pollfd descriptors[2] = {{exitFd, POLLIN, 0}, {pipeOpen ? report[0] : -1, POLLIN, 0}};
        if (poll(descriptors, 2, static_cast<int>(left)) < 0 && errno != EINTR) {
            break;
        }
        if ((descriptors[1].revents & (POLLIN | POLLHUP)) != 0 && drain()) {
            pipeOpen = false;
        }
        exited = (descriptors[0].revents & POLLIN) != 0;
    }
    drain();
    close(report[0]);
    if (exitFd >= 0) {
        close(exitFd);
    }
    const bool timedOut = !exited;
    if (timedOut) {
        kill(pid, SIGKILL);
    }
    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    if (timedOut || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        return -1;
    }
    return collectedBy(text, pid);
}

} // namespace tarnic::bench
