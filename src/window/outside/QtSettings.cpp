// The settings file. QSettings reads and writes its format; when to read, what to keep and how a new
// file takes the place of the old one is decided here: QSettings itself writes over what it could not
// read, and forgets the values of a file that could not be opened for a moment.
#include "window/outside/QtSettings.h"

#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStringList>
#include <QTemporaryFile>
#include <QVariant>

#include "window/outside/QtFiles.h"

namespace {

QString Path(const std::string& section, const std::string& key) {
    return QString::fromStdString(section + '/' + key);
}

/// A value as one text. A comma that someone typed into the file without quotes makes a list of it.
QString Text(const QVariant& value) {
    const QStringList parts = value.toStringList();
    return parts.size() > 1 ? parts.join(QStringLiteral(", ")) : value.toString();
}

/// Brings a name in a folder to the disk; of the file itself Qt takes care.
void SyncFolder(const QString& folder) {
    const int descriptor = ::open(folder.toUtf8().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

}  // namespace

std::string QtSettings::FileName(const std::string& application) {
    const QSettings settings(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Kelmor"),
                             QString::fromStdString(application));
    return settings.fileName().toStdString();
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

std::optional<QtSettings::Look> QtSettings::LookAt(const QString& name) {
    const QFileInfo info(name);
    if (!info.exists()) return std::nullopt;
    return Look{info.size(), info.lastModified().toMSecsSinceEpoch()};
}

QtSettings::File& QtSettings::Open(const std::string& application) const {
    const auto [place, isNew] = files_.try_emplace(application);
    File& file = place->second;
    if (isNew) {
        file.Name = QString::fromStdString(FileName(application));
        Load(file);
    }
    return file;
}

void QtSettings::Load(File& file) const {
    file.Seen = LookAt(file.Name);
    file.Blocked = false;
    if (!file.Seen) {
        file.Written.clear();
        return;
    }
    std::string content;
    if (QtFiles().Read(file.Name.toStdString(), content)) {
        // What was read before still stands.
        file.Blocked = true;
        return;
    }
    // A copy of a new name: QSettings remembers a file by its name, and tells of a fault in it only once.
    QTemporaryFile copy;
    if (!copy.open() || copy.write(content.data(), static_cast<qint64>(content.size())) < 0 ||
        !copy.flush()) {
        file.Blocked = true;
        return;
    }
    const QSettings settings(copy.fileName(), QSettings::IniFormat);
    Values values;
    const QStringList paths = settings.allKeys();
    for (const QString& path : paths) values[path] = Text(settings.value(path));
    const bool understood = settings.status() == QSettings::NoError;
    const bool gone = !understood && SetAside(file);
    file.Blocked = !understood && !gone;
    if (gone) {
        values.clear();
        file.Seen = LookAt(file.Name);
    }
    file.Written = std::move(values);
}

bool QtSettings::SetAside(const File& file) const {
    QtFiles files;
    const std::string from = file.Name.toStdString();
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
    const File& file = Open(application);
    const QString path = Path(section, key);
    for (const Values* values : {&file.Unwritten, &file.Written}) {
        const auto value = values->find(path);
        if (value != values->end()) return value->second.toStdString();
    }
    return defaultValue;
}

FileError QtSettings::PutOnDisk(const QString& name, const Values& values) {
    // Through a link, so that a file which the user keeps elsewhere is not replaced by a plain one.
    const QFileInfo info(name);
    const QString target = info.exists() ? info.canonicalFilePath() : name;
    const QString fresh = target + QStringLiteral(".new");
    {
        // What a program that was killed may have left. QSettings would wait half a minute for its lock.
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
    SyncFolder(QFileInfo(target).path());
    return std::nullopt;
}

FileError QtSettings::Write(File& file) const {
    if (!QDir().mkpath(QFileInfo(file.Name).path())) return "Its folder cannot be made";
    const FileTurn turn(file.Name.toStdString() + ".lock");
    if (turn.Fault()) return turn.Fault();
    // Someone else has written, or it could not be read before.
    if (file.Blocked || LookAt(file.Name) != file.Seen) Load(file);
    if (file.Blocked) return "What is there cannot be read as settings and cannot be moved away";

    Values all = file.Written;
    for (const auto& [path, text] : file.Unwritten) all[path] = text;
    if (all != file.Written) {
        if (const FileError fault = PutOnDisk(file.Name, all)) return fault;
        file.Written = std::move(all);
        file.Seen = LookAt(file.Name);
    }
    file.Unwritten.clear();
    return std::nullopt;
}

void QtSettings::SaveSettings(const std::string& application, const std::vector<SettingValue>& values) {
    File& file = Open(application);
    for (const SettingValue& value : values) {
        file.Unwritten[Path(value.Section, value.Key)] = QString::fromStdString(value.Value);
    }
    const FileError fault = Write(file);
    if (!fault) {
        file.Reported = false;
    } else if (!std::exchange(file.Reported, true)) {
        Tell("The settings file " + file.Name.toStdString() + " could not be written: " + *fault +
             ". Changes of the settings are kept while the program runs.");
    }
}
