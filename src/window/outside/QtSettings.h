// The settings file: Qt's settings of the user, organisation "Kelmor", one file an application.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <QString>

#include "engine/outside/windowlayer.h"

/// A file that cannot be read as settings is set aside under another name before anything is written.
/// A value that cannot be written stays in memory and goes to the file with the next write that works.
/// Several programs may use the same file: each write takes in what the others have written.
class QtSettings : public SettingsStore {
public:
    using Report = std::function<void(const std::string&)>;

    /// Who tells the player of a file set aside or not written. Without one the messages wait.
    void SetReport(Report report);

    [[nodiscard]] std::string GetSetting(const std::string& application, const std::string& section,
                                         const std::string& key,
                                         const std::string& defaultValue) const override;
    void SaveSettings(const std::string& application, const std::vector<SettingValue>& values) override;

    /// The file of an application.
    [[nodiscard]] static std::string FileName(const std::string& application);

private:
    using Values = std::map<QString, QString>;  // by "section/key"

    /// What a file looked like when it was last read or written here; nothing for a missing file.
    struct Look {
        qint64 Size = 0;
        qint64 Changed = 0;  ///< milliseconds since 1970
        bool operator==(const Look&) const = default;
    };
    struct File {
        QString Name;
        Values Written;  ///< as in the file
        Values Unwritten;
        std::optional<Look> Seen;
        bool Blocked = false;   ///< a file is there that must not be written over
        bool Reported = false;  ///< the player knows that it cannot be written
    };

    [[nodiscard]] File& Open(const std::string& application) const;
    void Load(File& file) const;
    [[nodiscard]] bool SetAside(const File& file) const;
    /// Brings what is unwritten to the disk; the cause where that fails.
    [[nodiscard]] FileError Write(File& file) const;
    [[nodiscard]] static FileError PutOnDisk(const QString& name, const Values& values);
    [[nodiscard]] static std::optional<Look> LookAt(const QString& name);
    void Tell(const std::string& message) const;

    Report report_;
    mutable std::vector<std::string> waiting_;
    mutable std::map<std::string, File> files_;
};
