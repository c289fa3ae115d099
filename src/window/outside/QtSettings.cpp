// The settings file. QSettings reads and writes its format; when to read, what to keep and how a new
// file takes the place of the old one is decided here: QSettings itself writes over what it could not
// read, and forgets the values of a file that could not be opened for a moment.
#include "window/outside/QtSettings.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <utility>

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryFile>
#include <QVariant>

#include "engine/outside/DiskFiles.h"
#include "engine/outside/FileTurn.h"
#include "engine/records/mScoreFile.h"

namespace {

QString Path(const std::string& section, const std::string& key) {
    return QString::fromStdString(section + '/' + key);
}

/// A value as one text. A comma that someone typed into the file without quotes makes a list of it.
QString Text(const QVariant& value) {
    const QStringList parts = value.toStringList();
    return parts.size() > 1 ? parts.join(QStringLiteral(", ")) : value.toString();
}

/// Nothing where QSettings cannot make sense of a text; a cause where it could not even try.
FileError Parse(const std::string& content, std::optional<std::map<QString, QString>>& found) {
    // Lines in the way of any system and editor, with or without its mark.
    std::string lines;
    mScoreFile::ForEachLine(content, [&lines](std::string_view line) {
        lines.append(line).append("\n");
        return true;
    });
    // A copy of a new name: QSettings remembers a file by its name, and tells of a fault in it only once.
    QTemporaryFile copy;
    if (!copy.open() || copy.write(lines.data(), static_cast<qint64>(lines.size())) < 0 || !copy.flush()) {
        return "There is no room in " + QDir::tempPath().toStdString() + " for a copy to read";
    }
    const QSettings settings(copy.fileName(), QSettings::IniFormat);
    std::map<QString, QString> values;
    const QStringList paths = settings.allKeys();
    for (const QString& path : paths) values[path] = Text(settings.value(path));
    if (settings.status() == QSettings::NoError) found = std::move(values);
    return std::nullopt;
}

std::int64_t Nanoseconds(const std::timespec& time) {
    constexpr std::int64_t Second = 1'000'000'000;
    return time.tv_sec * Second + time.tv_nsec;
}

}  // namespace

std::string QtSettings::FileName(const std::string& application) {
    // Where QSettings keeps such a file. It would tell itself, but only after it has read whatever is there.
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder.toStdString() + "/Kelmor/" + application + ".conf";
}

void QtSettings::SetReport(Report report) {
    report_ = std::move(report);
    if (!report_) return;
    // A report may open a window, and that may come back here.
    const std::vector<std::string> messages = std::exchange(waiting_, {});
    for (const std::string& message : messages) report_(message);
}

void QtSettings::Tell(const std::string& message) const {
    if (report_) {
        report_(message);
    } else {
        waiting_.push_back(message);
    }
}

std::optional<QtSettings::Look> QtSettings::LookAt(const std::string& name) {
    struct stat status {};
    if (::stat(name.c_str(), &status) != 0) return std::nullopt;
    return Look{.Device = status.st_dev,
                .Number = status.st_ino,
                .Size = static_cast<std::uint64_t>(status.st_size),
                .Written = Nanoseconds(status.st_mtim),
                .Changed = Nanoseconds(status.st_ctim)};
}

bool QtSettings::IsSettled(const Look& look) {
    // The times of files go by steps of some milliseconds: who writes twice within one leaves no trace of it.
    constexpr std::int64_t Steps = 20'000'000;
    std::timespec now{};
    ::clock_gettime(CLOCK_REALTIME_COARSE, &now);
    return std::max(look.Written, look.Changed) + Steps < Nanoseconds(now);
}

QtSettings::File& QtSettings::Open(const std::string& application) const {
    const auto [place, isNew] = files_.try_emplace(application);
    File& file = place->second;
    if (isNew) {
        file.Name = FileName(application);
        Load(file, Purpose::Write);
        if (file.Blocked) {
            Tell("The settings file " + file.Name + " could not be read: " + *file.Blocked +
                 ". The settings start from their defaults.");
        }
    }
    return file;
}

const QtSettings::File& QtSettings::Now(const std::string& application) const {
    File& file = Open(application);
    if (!file.Sure || LookAt(file.Name) != file.Seen) Load(file, Purpose::Read);
    return file;
}

void QtSettings::Load(File& file, Purpose purpose) const {
    const bool again = !file.Damaged && !file.Blocked && file.Seen;
    file.Seen = LookAt(file.Name);
    file.Sure = !file.Seen || IsSettled(*file.Seen);
    file.Damaged = false;
    file.Blocked.reset();
    if (!file.Seen) {
        file.Written.clear();
        return;
    }
    constexpr std::size_t MostBytes = std::size_t{4} << 20;  // no settings of this program are that large
    std::string content;
    std::optional<Values> values;
    if (file.Seen->Size <= MostBytes) {
        file.Blocked = DiskFiles::Read(file.Name, content, MostBytes);
        if (file.Blocked) return;  // what was read before still stands
        if (again && content == file.Content) return;
        file.Blocked = Parse(content, values);
        if (file.Blocked) return;
    } else if (file.Blocked = DiskFiles().Protection(file.Name); file.Blocked) {
        return;
    }
    if (!values) {
        file.Damaged = true;
        if (purpose == Purpose::Read) return;
        if (!SetAside(file)) {
            file.Blocked = "What is there cannot be read as settings and cannot be moved away";
            return;
        }
        file.Damaged = false;
        file.Seen = LookAt(file.Name);
        content.clear();
        values.emplace();
    }
    file.Content = std::move(content);
    file.Written = std::move(*values);
}

bool QtSettings::SetAside(const File& file) const {
    DiskFiles files;
    const std::string& from = file.Name;
    for (int i = 1;; ++i) {
        const std::string to = from + ".damaged-" + std::to_string(i);
        if (files.Exists(to)) continue;
        if (!files.Rename(from, to)) {
            Tell("The settings file " + from + " could not be understood. It was kept as " + to +
                 ", and the settings start from their defaults.");
            return true;
        }
        // Gone, because another program has set it aside.
        if (!files.Exists(from)) return true;
        if (!files.Exists(to)) return false;
    }
}

std::string QtSettings::GetSetting(const std::string& application, const std::string& section,
                                   const std::string& key, const std::string& defaultValue) const {
    const File& file = Now(application);
    const QString path = ::Path(section, key);
    for (const Values* values : {&file.Unwritten, &file.Written}) {
        const auto value = values->find(path);
        if (value != values->end()) return value->second.toStdString();
    }
    return defaultValue;
}

std::map<std::string, std::string> QtSettings::GetSection(const std::string& application,
                                                          const std::string& section) const {
    const File& file = Now(application);
    const QString start = ::Path(section, "");
    std::map<std::string, std::string> found;
    for (const Values* values : {&file.Written, &file.Unwritten}) {
        for (auto value = values->lower_bound(start);
             value != values->end() && value->first.startsWith(start); ++value) {
            found[value->first.mid(start.size()).toStdString()] = value->second.toStdString();
        }
    }
    return found;
}

FileError QtSettings::PutOnDisk(const std::string& name, const Values& values) {
    // Through a link, so that a file which the user keeps elsewhere is not replaced by a plain one.
    const QFileInfo info(QString::fromStdString(name));
    const QString target = info.exists() ? info.canonicalFilePath() : info.filePath();
    // QSettings writes it as such a name's own file first.
    const std::string unfinished = mDisk::UnfinishedName(target.toStdString());
    const QString fresh = QString::fromStdString(unfinished.substr(0, unfinished.size() - 1));
    {
        // What a program that was killed may have left. QSettings would wait half a minute for its lock.
        mDisk::SweepUnfinished(target.toStdString());
        QFile::remove(fresh);
        QFile::remove(fresh + QStringLiteral(".lock"));
        QSettings settings(fresh, QSettings::IniFormat);
        settings.clear();
        for (const auto& [path, text] : values) settings.setValue(path, text);
        settings.sync();
        if (settings.status() != QSettings::NoError) return "No file can be written in its folder";
    }
    if (info.exists()) QFile::setPermissions(fresh, info.permissions());
    if (::rename(fresh.toUtf8().constData(), target.toUtf8().constData()) != 0) {
        QFile::remove(fresh);
        return "Its place cannot be taken by a new file";
    }
    mDisk::SyncFolder(mDisk::FolderOf(target.toStdString()));
    return std::nullopt;
}

FileError QtSettings::Write(File& file, const Values& values) const {
    std::optional<FileTurn> turn;
    if (file.Alone) {
        if (file.NoTurn) return file.NoTurn;
    } else {
        if (DiskFiles().MakeFolder(mDisk::FolderOf(file.Name))) return "Its folder cannot be made";
        turn.emplace(file.Name + ".lock");
        if (turn->Fault()) return turn->Fault();
    }
    // Someone else has written, or it could not be read before.
    if (file.Blocked || file.Damaged || !file.Sure || LookAt(file.Name) != file.Seen)
        Load(file, Purpose::Write);
    if (file.Blocked) return file.Blocked;

    Values all = file.Written;
    for (const auto& more : {file.Unwritten, values}) {
        for (const auto& [path, text] : more) all[path] = text;
    }
    if (all != file.Written) {
        if (const FileError fault = PutOnDisk(file.Name, all)) return fault;
        file.Written = std::move(all);
        file.Content.clear();
        file.Seen = LookAt(file.Name);
        file.Sure = false;
    }
    file.Unwritten.clear();
    return std::nullopt;
}

void QtSettings::SaveSettings(const std::string& application, const std::vector<SettingValue>& values) {
    File& file = Open(application);
    for (const SettingValue& value : values) {
        file.Unwritten[::Path(value.Section, value.Key)] = QString::fromStdString(value.Value);
    }
    const FileError fault = Write(file, {});
    if (!fault) {
        file.Reported = false;
    } else if (!std::exchange(file.Reported, true)) {
        Tell("The settings file " + file.Name + " could not be written: " + *fault +
             ". Changes of the settings are kept while the program runs.");
    }
}

FileError QtSettings::ChangeSettings(const std::string& application,
                                     const std::vector<SettingValue>& values) {
    Values changes;
    for (const SettingValue& value : values) {
        changes[::Path(value.Section, value.Key)] = QString::fromStdString(value.Value);
    }
    return Write(Open(application), changes);
}

bool QtSettings::Alone(const std::string& application, const std::function<void()>& step) {
    File& file = Open(application);
    if (file.Alone) {
        step();
        return true;
    }
    (void)DiskFiles().MakeFolder(mDisk::FolderOf(file.Name));  // where that fails, so does the turn
    const FileTurn turn(file.Name + ".lock");
    if (turn.Busy()) return false;
    // The step may end in an exception.
    class Flag {
    public:
        explicit Flag(File& file, FileError noTurn) : file_(file) {
            file_.Alone = true;
            file_.NoTurn = std::move(noTurn);
        }
        ~Flag() { file_.Alone = false; }
        Flag(const Flag&) = delete;
        Flag& operator=(const Flag&) = delete;

    private:
        File& file_;
    };
    const Flag flag(file, turn.Fault());
    step();
    return true;
}
