// Calls of the system for files.
#include "engine/outside/mDisk.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <ctime>
#include <thread>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace mDisk {

namespace {

constexpr mode_t FileMode = 0666;  // as far as the user's mask allows

}  // namespace

std::string Cause(int error) {
    const char* text = strerrordesc_np(error);
    return text ? text : "Error " + std::to_string(error);
}

void Descriptor::Close() {
    if (number_ >= 0) ::close(number_);
    number_ = -1;
}

int Open(const std::string& path, int flags) {
    int number = -1;
    do {
        number = ::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, FileMode);
    } while (number < 0 && errno == EINTR);
    return number;
}

FileError OpenFile(const std::string& path, int flags, std::optional<Descriptor>& file, struct stat& status) {
    const auto kind = [&status]() -> FileError {
        if (S_ISDIR(status.st_mode)) return Cause(EISDIR);
        return S_ISREG(status.st_mode) ? FileError() : FileError("It is not a file");
    };
    // Looked at before it is opened, as some devices do things when they are, and after, when it stays the
    // same.
    if (::stat(path.c_str(), &status) == 0) {
        if (FileError fault = kind()) return fault;
    }
    file.emplace(Open(path, flags));
    if (!file->Valid() || ::fstat(file->Number(), &status) != 0) return Cause(errno);
    return kind();
}

std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

void SyncFolder(const std::string& folder) {
    const Descriptor descriptor(Open(folder, O_RDONLY | O_DIRECTORY));
    if (descriptor.Valid()) ::fsync(descriptor.Number());
}

ssize_t WriteOnce(int descriptor, std::string_view text) {
    ssize_t written = -1;
    do {
        written = ::write(descriptor, text.data(), text.size());
    } while (written < 0 && errno == EINTR);
    return written;
}

FileError WriteAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = WriteOnce(descriptor, text);
        if (written < 0) return Cause(errno);
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return std::nullopt;
}

std::string UnfinishedName(const std::string& target) { return target + ".unfinished."; }

void SweepUnfinished(const std::string& target) {
    constexpr std::size_t Random = 6;  // as many as mkstemp puts behind a name
    constexpr std::time_t Age = 60;    // seconds
    const std::string folder = FolderOf(target);
    const std::string start = UnfinishedName(target.substr(target.rfind('/') + 1));
    DIR* open = ::opendir(folder.c_str());
    if (!open) return;
    while (const dirent* entry = ::readdir(open)) {
        const std::string_view name = entry->d_name;
        struct stat status {};
        if (name.size() == start.size() + Random && name.starts_with(start) &&
            ::fstatat(::dirfd(open), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
            S_ISREG(status.st_mode) && status.st_mtime + Age < std::time(nullptr)) {
            ::unlinkat(::dirfd(open), entry->d_name, 0);
        }
    }
    ::closedir(open);
}

Turn Lock(int descriptor) {
    // Often: another program may leave only short gaps.
    constexpr auto Step = std::chrono::milliseconds(1);
    constexpr int Attempts = 5000;
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) return Turn::Taken;
        if (errno != EWOULDBLOCK && errno != EINTR) return Turn::NoLocks;
        std::this_thread::sleep_for(Step);
    }
    return Turn::Busy;
}

}  // namespace mDisk
