// Files and folders of the machine, over the system's calls.
#include "window/outside/QtFiles.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>
#include <thread>

#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t FolderMode = 0777;  // both as far as the user's mask allows
constexpr mode_t FileMode = 0666;

std::string Cause(int error) {
    // Always English, as all messages of the program, and safe with threads.
    const char* text = strerrordesc_np(error);
    return text ? text : "Error " + std::to_string(error);
}

/// An open file; closed at the end of the block.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] bool Valid() const { return number_ >= 0; }
    [[nodiscard]] int Number() const { return number_; }
    void Close() {
        if (number_ >= 0) ::close(number_);
        number_ = -1;
    }

private:
    int number_;
};

int Open(const std::string& path, int flags) {
    int number = -1;
    do {
        number = ::open(path.c_str(), flags | O_CLOEXEC, FileMode);
    } while (number < 0 && errno == EINTR);
    return number;
}

std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

/// Brings the names in a folder to the disk. Some file systems cannot: the file itself is safe then.
void SyncFolder(const std::string& folder) {
    const Descriptor descriptor(Open(folder, O_RDONLY | O_DIRECTORY));
    if (descriptor.Valid()) ::fsync(descriptor.Number());
}

/// One call; only a call that was interrupted before it wrote anything is made again.
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

/// Waits for other programs that hold the file, five seconds at most.
FileError Lock(int descriptor) {
    constexpr auto Step = std::chrono::milliseconds(10);
    for (int attempt = 0; attempt < 500; ++attempt) {
        if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) return std::nullopt;
        // A file system without locks: O_APPEND alone keeps the lines of two programs apart.
        if (errno != EWOULDBLOCK && errno != EINTR) return std::nullopt;
        std::this_thread::sleep_for(Step);
    }
    return "Another program keeps the file locked";
}

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
    const ssize_t written = WriteOnce(descriptor, text);
    FileError fault;
    if (written < 0) {
        fault = Cause(errno);
    } else if (static_cast<std::size_t>(written) < text.size()) {
        // A short write keeps its cause to itself; the next one tells it.
        const ssize_t more = WriteOnce(descriptor, text.substr(static_cast<std::size_t>(written)));
        fault = more < 0 ? Cause(errno) : "Only a part could be written";
    } else if (::fsync(descriptor) != 0) {
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

FileTurn::FileTurn(const std::string& path) : file_(Open(path, O_RDWR | O_CREAT)) {
    fault_ = file_ < 0 ? Cause(errno) : Lock(file_);
}

FileTurn::~FileTurn() {
    if (file_ >= 0) ::close(file_);
}

QtFiles::QtFiles() {
    // A file that reaches the size limit shall give an error to report, not end the program.
    std::signal(SIGXFSZ, SIG_IGN);
}

std::string QtFiles::DataFolder() const {
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

bool QtFiles::Exists(const std::string& path) const {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0;
}

FileError QtFiles::MakeFolder(const std::string& path) {
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

FileError QtFiles::AppendLines(const std::string& path, const std::vector<std::string>& lines) {
    if (lines.empty()) return std::nullopt;
    constexpr int Attempts = 10;
    for (int attempt = 0; attempt < Attempts; ++attempt) {
        bool created = true;
        int number = Open(path, O_RDWR | O_APPEND | O_CREAT | O_EXCL);
        if (number < 0 && errno == EEXIST) {
            created = false;
            number = Open(path, O_RDWR | O_APPEND | O_CREAT);
        }
        if (number < 0) return Cause(errno);
        const Descriptor file(number);
        if (const FileError fault = Lock(file.Number())) return fault;
        struct stat status {};
        if (::fstat(file.Number(), &status) != 0) return Cause(errno);
        if (!S_ISREG(status.st_mode)) return "It is not a file";
        if (!StillThere(path, status)) continue;

        std::string text;
        if (const FileError fault = EndOfTornLine(file.Number(), status.st_size, text)) return fault;
        for (const std::string& line : lines) text += line + "\r\n";
        const FileError fault = AppendText(file.Number(), status.st_size, text);
        if (fault && created && status.st_size == 0) ::unlink(path.c_str());
        if (!fault && created) SyncFolder(FolderOf(path));
        return fault;
    }
    return "Another program keeps replacing the file";
}

FileError QtFiles::Read(const std::string& path, std::string& content) const {
    const Descriptor file(Open(path, O_RDONLY));
    if (!file.Valid()) return Cause(errno);
    std::string text;
    char block[65536];
    for (;;) {
        const ssize_t got = ::read(file.Number(), block, sizeof block);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return Cause(errno);
        if (got == 0) break;
        text.append(block, static_cast<std::size_t>(got));
    }
    content = std::move(text);
    return std::nullopt;
}

FileError QtFiles::Replace(const std::string& path, const std::string& content) {
    // Through a link, so that a file which the user keeps elsewhere is not replaced by a plain one.
    std::string target = path;
    if (char* resolved = ::realpath(path.c_str(), nullptr)) {
        target = resolved;
        std::free(resolved);
    }
    struct stat old {};
    const bool existed = ::stat(target.c_str(), &old) == 0;
    if (existed && !S_ISREG(old.st_mode)) return "It is not a file";

    std::string name = target + ".XXXXXX";
    Descriptor file(::mkostemp(name.data(), O_CLOEXEC));
    if (!file.Valid()) return Cause(errno);
    FileError fault = WriteAll(file.Number(), content);
    if (!fault) {
        // mkostemp makes a file for the owner only; the old file's rights, or the usual ones, count.
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

FileError QtFiles::Remove(const std::string& path) {
    if (::unlink(path.c_str()) != 0) return Cause(errno);
    SyncFolder(FolderOf(path));
    return std::nullopt;
}

FileError QtFiles::Rename(const std::string& from, const std::string& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) != 0) {
        if (errno != EINVAL && errno != ENOSYS) return Cause(errno);
        // This file system cannot rename without replacing. A second name cannot replace either.
        if (::link(from.c_str(), to.c_str()) == 0) {
            if (::unlink(from.c_str()) != 0) {
                const FileError fault = Cause(errno);
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
