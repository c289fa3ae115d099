// A turn that programs take with a file.
#pragma once

#include <string>

#include "engine/outside/mDisk.h"

/// Held from the construction to the end of the object, and dropped by the system with a program that is
/// killed. The lock lies on a file of its own, which is made where it is missing and stays: removing it would
/// let two programs hold two files of one name.
class FileTurn {
public:
    /// Waits for other programs, five seconds at most.
    explicit FileTurn(const std::string& path);

    /// Why there is no turn; nothing where it is held.
    [[nodiscard]] const FileError& Fault() const { return fault_; }
    /// Whether another program did not give way; else nobody can have a turn there.
    [[nodiscard]] bool Busy() const { return busy_; }

private:
    mDisk::Descriptor file_;
    FileError fault_;
    bool busy_ = false;
};
