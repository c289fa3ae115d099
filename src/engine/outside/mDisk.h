// What stands on the system's calls for files: open files, turns, and what goes to the disk for good.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <sys/stat.h>
#include <sys/types.h>

#include "engine/outside/windowlayer.h"

namespace mDisk {

/// The text of a cause, as part of a sentence. Always English, as all messages of the program, and safe with
/// threads.
[[nodiscard]] std::string Cause(int error);

/// An open file; closed at the end of the block.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] bool Valid() const { return number_ >= 0; }
    [[nodiscard]] int Number() const { return number_; }
    void Close();

private:
    int number_;
};

/// Opens without ever waiting, which a pipe would make a reader do. -1 and errno where that fails.
[[nodiscard]] int Open(const std::string& path, int flags);

/// Opens what is a file, or is to become one; a device or a pipe is not even touched. The cause where that
/// fails.
[[nodiscard]] FileError OpenFile(const std::string& path, int flags, std::optional<Descriptor>& file,
                                 struct stat& status);

/// "." for a path without a slash.
[[nodiscard]] std::string FolderOf(const std::string& path);

/// Brings the names in a folder to the disk. Some file systems cannot: the file itself is safe then.
void SyncFolder(const std::string& folder);

/// One call; only a call that was interrupted before it wrote anything is made again.
[[nodiscard]] ssize_t WriteOnce(int descriptor, std::string_view text);
[[nodiscard]] FileError WriteAll(int descriptor, std::string_view text);

/// How a file is called before it takes the place of `target`, but for six characters that make each such
/// name its own.
[[nodiscard]] std::string UnfinishedName(const std::string& target);
/// Removes files of such names that programs left which were killed: those that nobody has written to for a
/// minute.
void SweepUnfinished(const std::string& target);

enum class Turn { Taken, Busy, NoLocks };
/// Waits for other programs that hold the file, five seconds at most. A file system may know no locks.
[[nodiscard]] Turn Lock(int descriptor);

}  // namespace mDisk
