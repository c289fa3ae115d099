// Files and folders of the machine. What must survive a loss of power goes to the disk before an
// operation returns, which Qt's own file classes do not promise; so this stands on the system's calls.
#pragma once

#include "engine/outside/windowlayer.h"

/// A turn that programs take with a file: held from the construction to the end of the object, and dropped by
/// the system with a program that is killed. The lock lies on a file of its own, which is made where it is
/// missing and stays: removing it would let two programs hold two files of one name.
class FileTurn {
public:
    /// Waits for other programs, five seconds at most.
    explicit FileTurn(const std::string& path);
    ~FileTurn();
    FileTurn(const FileTurn&) = delete;
    FileTurn& operator=(const FileTurn&) = delete;

    /// Why there is no turn; nothing where it is held.
    [[nodiscard]] const FileError& Fault() const { return fault_; }

private:
    int file_;
    FileError fault_;
};

/// Causes are parts of a sentence, such as "No space left on device".
class QtFiles : public FileSystem {
public:
    QtFiles();

    /// $XDG_DATA_HOME, else ~/.local/share.
    [[nodiscard]] std::string DataFolder() const override;
    [[nodiscard]] char Separator() const override { return '/'; }
    [[nodiscard]] bool Exists(const std::string& path) const override;
    /// Also makes the folders above it; a folder that is there already is no fault.
    [[nodiscard]] FileError MakeFolder(const std::string& path) override;
    /// Programs that append to the same file take turns; after five seconds of waiting it is a fault.
    [[nodiscard]] FileError AppendLines(const std::string& path,
                                        const std::vector<std::string>& lines) override;
    [[nodiscard]] FileError Read(const std::string& path, std::string& content) const override;
    [[nodiscard]] FileError Replace(const std::string& path, const std::string& content) override;
    /// A file that is not there is a fault.
    [[nodiscard]] FileError Remove(const std::string& path) override;
    [[nodiscard]] FileError Rename(const std::string& from, const std::string& to) override;
};
