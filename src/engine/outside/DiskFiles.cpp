// Files and folders of the machine, over the system's calls.
#include "engine/outside/DiskFiles.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include "engine/outside/mDisk.h"

namespace {

using mDisk::Cause;
using mDisk::Descriptor;
using mDisk::FolderOf;
using mDisk::SyncFolder;

constexpr int MegaBits = 20;
constexpr mode_t FolderMode = 0777;  // as far as the user's mask allows

/// What must stand before new lines so that they begin a line of their own.
FileError EndOfTornLine(int descriptor, off_t size, std::string& end) {
    end.clear();
    if (size == 0) return std::nullopt;
    char last = 0;
    const ssize_t got = ::pread(descriptor, &last, 1, size - 1);
    if (got < 0) return Cause(errno);
    if (got == 1 && last != '\n') end = last == '\r' ? "\n" : "\r\n";
    return std::nullopt;
}

/// Writes at the end of the file, in one piece or not at all.
FileError AppendText(int descriptor, off_t size, std::string_view text) {
    const ssize_t written = mDisk::WriteOnce(descriptor, text);
    FileError fault;
    if (written >= 0 && static_cast<std::size_t>(written) < text.size()) {
        // A short write keeps its cause to itself; the next one tells it.
        const ssize_t more = mDisk::WriteOnce(descriptor, text.substr(static_cast<std::size_t>(written)));
        fault = more < 0 ? Cause(errno) : "Only a part could be written";
    } else if (written < 0 || ::fsync(descriptor) != 0) {
        fault = Cause(errno);
    }
    if (fault && written > 0 && ::ftruncate(descriptor, size) != 0) {
        *fault += ", and a part of the text stays in the file (" + Cause(errno) + ")";
    }
    return fault;
}

/// Whether the open file still is the one under that name: another program may have renamed or
/// removed it while this one waited for the lock.
bool StillThere(const std::string& path, const struct stat& opened) {
    struct stat named {};
    return ::stat(path.c_str(), &named) == 0 && named.st_dev == opened.st_dev &&
           named.st_ino == opened.st_ino;
}

}  // namespace

DiskFiles::DiskFiles() {
    // A file that reaches the size limit shall give an error to report, not end the program.
    std::signal(SIGXFSZ, SIG_IGN);
}

std::string DiskFiles::DataFolder() const {
    const char* data = std::getenv("XDG_DATA_HOME");
    // A relative path counts as none by the rules of that variable.
    if (data && *data == '/') {
        const std::string folder = data;
        return folder.back() == '/' ? folder : folder + '/';
    }
    const char* home = std::getenv("HOME");
    if (!home || !*home) {
        const passwd* user = ::getpwuid(::getuid());
        home = user ? user->pw_dir : nullptr;
    }
    return home && *home ? std::string(home) + "/.local/share/" : std::string{};
}

bool DiskFiles::Exists(const std::string& path) const {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0;
}

FileError DiskFiles::MakeFolder(const std::string& path) {
    if (path.empty()) return Cause(ENOENT);
    for (std::size_t slash = path.find('/', 1);; slash = path.find('/', slash + 1)) {
        const std::string folder = path.substr(0, slash);
        if (::mkdir(folder.c_str(), FolderMode) == 0) {
            SyncFolder(FolderOf(folder));
        } else {
            const int error = errno;
            struct stat status {};
            if (::stat(folder.c_str(), &status) != 0) return Cause(error);
            if (!S_ISDIR(status.st_mode)) return Cause(ENOTDIR);
        }
        if (slash == std::string::npos || slash + 1 == path.size()) return std::nullopt;
    }
}

FileError DiskFiles::AppendLines(const std::string& path, const std::vector<std::string>& lines) {
    if (lines.empty()) return std::nullopt;
    constexpr int Attempts = 10;
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        std::optional<Descriptor> file;
        struct stat status {};
        bool created = true;
        FileError fault = mDisk::OpenFile(path, O_RDWR | O_APPEND | O_CREAT | O_EXCL, file, status);
        if (fault == Cause(EEXIST)) {
            created = false;
            fault = mDisk::OpenFile(path, O_RDWR | O_APPEND | O_CREAT, file, status);
        }
        if (fault) return fault;
        // A file system without locks: O_APPEND alone keeps the lines of two programs apart.
        if (mDisk::Lock(file->Number()) == mDisk::Turn::Busy) return "Another program keeps the file locked";
        if (::fstat(file->Number(), &status) != 0) return Cause(errno);
        if (!StillThere(path, status)) continue;

        std::string text;
        fault = EndOfTornLine(file->Number(), status.st_size, text);
        if (fault) return fault;
        for (const std::string& line : lines) text += line + "\r\n";
        fault = AppendText(file->Number(), status.st_size, text);
        if (fault && created && status.st_size == 0) ::unlink(path.c_str());
        if (!fault && created) SyncFolder(FolderOf(path));
        return fault;
    }
    return "Another program keeps replacing the file";
}

FileError DiskFiles::List(const std::string& folder, std::vector<std::string>& names) const {
    DIR* open = ::opendir(folder.c_str());
    if (!open) return Cause(errno);
    while (const dirent* entry = ::readdir(open)) {
        struct stat status {};
        if (::fstatat(::dirfd(open), entry->d_name, &status, 0) == 0 && S_ISREG(status.st_mode)) {
            names.emplace_back(entry->d_name);
        }
    }
    ::closedir(open);
    return std::nullopt;
}

bool DiskFiles::Same(const std::string& one, const std::string& other) const {
    struct stat first {};
    struct stat second {};
    return ::stat(one.c_str(), &first) == 0 && ::stat(other.c_str(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

FileError DiskFiles::Protection(const std::string& path) const {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return std::nullopt;
    if (!S_ISREG(status.st_mode)) return "It is not a file";
    // The rights do not hold root back, and a new file takes the old one's place whatever they are: both
    // would not be what someone meant who has taken the right to write away.
    const bool closed = (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0;
    const bool closedToOwner = status.st_uid == ::geteuid() && (status.st_mode & S_IWUSR) == 0;
    if (closed || closedToOwner || ::access(path.c_str(), W_OK) != 0) return "It is write-protected";
    return std::nullopt;
}

FileError DiskFiles::Read(const std::string& path, std::string& content) const {
    return Read(path, content, MostBytes);
}

FileError DiskFiles::Read(const std::string& path, std::string& content, std::size_t most) {
    std::optional<Descriptor> file;
    struct stat status {};
    if (FileError fault = mDisk::OpenFile(path, O_RDONLY, file, status)) return fault;
    const auto size = static_cast<std::size_t>(status.st_size);
    const std::string tooLarge = "It is larger than " + std::to_string(most >> MegaBits) + " MB";
    if (size > most) return tooLarge;
    std::string text;
    try {
        // A size tells only what was there a moment ago; the files of the kernel tell none at all.
        constexpr std::size_t Block = 65536;
        text.resize(size + 1);
        for (std::size_t filled = 0;;) {
            const ssize_t got = ::read(file->Number(), text.data() + filled, text.size() - filled);
            if (got < 0 && errno == EINTR) continue;
            if (got < 0) return Cause(errno);
            filled += static_cast<std::size_t>(got);
            if (got == 0) {
                text.resize(filled);
                break;
            }
            if (filled > most) return tooLarge;
            if (filled == text.size()) text.resize(text.size() + Block);
        }
    } catch (const std::bad_alloc&) {
        return "There is not enough memory for it";
    }
    content = std::move(text);
    return std::nullopt;
}

FileError DiskFiles::Replace(const std::string& path, const std::string& content) {
    // Through a link, so that a file which the user keeps elsewhere is not replaced by a plain one.
    std::string target = path;
    if (char* resolved = ::realpath(path.c_str(), nullptr)) {
        target = resolved;
        std::free(resolved);
    }
    struct stat old {};
    const bool existed = ::stat(target.c_str(), &old) == 0;
    if (existed && !S_ISREG(old.st_mode)) return "It is not a file";

    mDisk::SweepUnfinished(target);
    std::string name = mDisk::UnfinishedName(target) + "XXXXXX";
    Descriptor file(::mkostemp(name.data(), O_CLOEXEC));
    if (!file.Valid()) return Cause(errno);
    FileError fault = mDisk::WriteAll(file.Number(), content);
    if (!fault) {
        // mkostemp makes a file for the owner only; the old file's rights, or the usual ones, count.
        constexpr mode_t FileMode = 0666;
        mode_t mode = old.st_mode & 07777;
        if (!existed) {
            const mode_t mask = ::umask(0);
            ::umask(mask);
            mode = FileMode & ~mask;
        }
        if (::fchmod(file.Number(), mode) != 0 || ::fsync(file.Number()) != 0) fault = Cause(errno);
    }
    file.Close();
    if (!fault && ::rename(name.c_str(), target.c_str()) != 0) fault = Cause(errno);
    if (fault) {
        ::unlink(name.c_str());
        return fault;
    }
    SyncFolder(FolderOf(target));
    return std::nullopt;
}

FileError DiskFiles::Remove(const std::string& path) {
    if (::unlink(path.c_str()) != 0) return Cause(errno);
    SyncFolder(FolderOf(path));
    return std::nullopt;
}

FileError DiskFiles::Rename(const std::string& from, const std::string& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) != 0) {
        if (errno != EINVAL && errno != ENOSYS) return Cause(errno);
        // This file system cannot rename without replacing. A second name cannot replace either.
        if (::link(from.c_str(), to.c_str()) == 0) {
            if (::unlink(from.c_str()) != 0) {
                FileError fault = Cause(errno);
                ::unlink(to.c_str());
                return fault;
            }
        } else {
            if (errno != EPERM && errno != EOPNOTSUPP) return Cause(errno);
            if (Exists(to)) return Cause(EEXIST);
            if (::rename(from.c_str(), to.c_str()) != 0) return Cause(errno);
        }
    }
    SyncFolder(FolderOf(to));
    if (FolderOf(from) != FolderOf(to)) SyncFolder(FolderOf(from));
    return std::nullopt;
}
