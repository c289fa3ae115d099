// Tasks in processes of their own: for limits, rights and violent ends that the tests must survive.
#pragma once

#include <cerrno>
#include <functional>

#include <sys/wait.h>
#include <unistd.h>

/// Waits for a child's end; answers what waitpid told of it.
inline int EndOf(pid_t child) {
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

/// Starts a task in a process of its own, which ends with 0 where the task answers true.
inline pid_t StartChild(const std::function<bool()>& task) {
    const pid_t child = ::fork();
    if (child == 0) ::_exit(task() ? 0 : 1);
    return child;
}

/// Runs a task in a process of its own; true when it ended well.
inline bool InChild(const std::function<bool()>& task) {
    const int status = EndOf(StartChild(task));
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

inline constexpr unsigned Nobody = 65534;  ///< a user, and a group, who own nothing

/// Rights of files do not hold root back.
inline bool BecomeNobody() { return ::geteuid() != 0 || (::setgid(Nobody) == 0 && ::setuid(Nobody) == 0); }
