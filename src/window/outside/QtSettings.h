// The settings file: Qt's settings of the user, organisation "Kelmor", one file an application.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <QString>

#include "engine/outside/windowlayer.h"

/// A file that cannot be read as settings is set aside under another name before anything is written.
/// A value that cannot be written stays in memory and goes to the file with the next write that works.
/// Several programs may use the same file: each read looks whether it has changed.
class QtSettings : public SettingsStore {
public:
    using Report = std::function<void(const std::string&)>;

    /// Who tells the player of a file set aside or not written. Without one the messages wait.
    void SetReport(Report report);

    [[nodiscard]] std::string GetSetting(const std::string& application, const std::string& section,
                                         const std::string& key,
                                         const std::string& defaultValue) const override;
    [[nodiscard]] std::map<std::string, std::string> GetSection(const std::string& application,
                                                                const std::string& section) const override;
    void SaveSettings(const std::string& application, const std::vector<SettingValue>& values) override;
    [[nodiscard]] FileError ChangeSettings(const std::string& application,
                                           const std::vector<SettingValue>& values) override;
    [[nodiscard]] bool Alone(const std::string& application, const std::function<void()>& step) override;
    [[nodiscard]] std::string Path(const std::string& application) const override {
        return FileName(application);
    }

    /// The file of an application.
    [[nodiscard]] static std::string FileName(const std::string& application);

private:
    using Values = std::map<QString, QString>;  // by "section/key"

    /// What a file looked like when it was last read or written here; nothing for a missing file.
    struct Look {
        std::uint64_t Device = 0, Number = 0, Size = 0;
        std::int64_t Written = 0, Changed = 0;  ///< nanoseconds since 1970
        bool operator==(const Look&) const = default;
    };
    struct File {
        std::string Name;
        std::string Content;  ///< of which Written was read
        Values Written;       ///< as in the file
        Values Unwritten;
        std::optional<Look> Seen;
        bool Sure = false;      ///< a file of another content would look different
        bool Damaged = false;   ///< what is there cannot be understood; Written is from before
        FileError Blocked;      ///< why what is there must not be written over
        bool Reported = false;  ///< the player knows that it cannot be written
        bool Alone = false;     ///< a step of this program's own runs
        FileError NoTurn;       ///< why that step could not keep others out
    };
    enum class Purpose { Read, Write };

    [[nodiscard]] File& Open(const std::string& application) const;
    /// The file as it is at this moment.
    [[nodiscard]] const File& Now(const std::string& application) const;
    /// A file that cannot be understood is only set aside where something is to be written: somebody may be
    /// in the middle of changing it.
    void Load(File& file, Purpose purpose) const;
    [[nodiscard]] bool SetAside(const File& file) const;
    /// Brings what is unwritten and these values to the disk; the cause where that fails.
    [[nodiscard]] FileError Write(File& file, const Values& values) const;
    [[nodiscard]] static FileError PutOnDisk(const std::string& name, const Values& values);
    [[nodiscard]] static std::optional<Look> LookAt(const std::string& name);
    [[nodiscard]] static bool IsSettled(const Look& look);
    void Tell(const std::string& message) const;

    Report report_;
    mutable std::vector<std::string> waiting_;
    mutable std::map<std::string, File> files_;
};
