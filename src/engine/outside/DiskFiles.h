// Files and folders of the machine. What must survive a loss of power goes to the disk before an operation
// returns, so this stands on the system's calls.
#pragma once

#include "engine/outside/windowlayer.h"

/// Causes are parts of a sentence, such as "No space left on device".
class DiskFiles : public FileSystem {
public:
    DiskFiles();

    /// $XDG_DATA_HOME, else ~/.local/share.
    [[nodiscard]] std::string DataFolder() const override;
    [[nodiscard]] char Separator() const override { return '/'; }
    [[nodiscard]] bool Exists(const std::string& path) const override;
    /// Also makes the folders above it; a folder that is there already is no fault.
    [[nodiscard]] FileError MakeFolder(const std::string& path) override;
    /// Programs that append to the same file take turns; after five seconds of waiting it is a fault.
    [[nodiscard]] FileError AppendLines(const std::string& path,
                                        const std::vector<std::string>& lines) override;
    /// Files and links to files.
    [[nodiscard]] FileError List(const std::string& folder, std::vector<std::string>& names) const override;
    [[nodiscard]] bool Same(const std::string& one, const std::string& other) const override;
    [[nodiscard]] FileError Protection(const std::string& path) const override;
    /// More than 512 MB are too large: some nine million records.
    static constexpr std::size_t MostBytes = std::size_t{512} << 20;
    [[nodiscard]] FileError Read(const std::string& path, std::string& content) const override;
    [[nodiscard]] static FileError Read(const std::string& path, std::string& content, std::size_t most);
    [[nodiscard]] FileError Replace(const std::string& path, const std::string& content) override;
    /// A file that is not there is a fault.
    [[nodiscard]] FileError Remove(const std::string& path) override;
    [[nodiscard]] FileError Rename(const std::string& from, const std::string& to) override;
};
