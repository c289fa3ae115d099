// Files and settings on a real disk: torn lines, two writers, a full disk, damaged and locked files.
#include <array>
#include <csignal>
#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utime.h>

#include <QDir>
#include <QSettings>
#include <QTemporaryDir>

#include "engine/outside/DiskFiles.h"
#include "support/Child.h"
#include "support/Expect.h"
#include "support/FromEnvironment.h"
#include "window/outside/QtCalendar.h"
#include "window/outside/QtSettings.h"

namespace {

std::string Content(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Put(const std::string& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

std::vector<std::string> Names(const std::string& folder) {
    std::vector<std::string> names;
    EXPECT_EQ(DiskFiles().List(folder, names), std::nullopt);
    return names;
}

class Files : public testing::Test {
protected:
    [[nodiscard]] std::string Path(const std::string& name) const {
        return folder_.path().toStdString() + '/' + name;
    }
    [[nodiscard]] std::string Folder() const { return folder_.path().toStdString(); }

    DiskFiles files_;

private:
    QTemporaryDir folder_;
};

TEST_F(Files, AppendsWholeLinesAfterWhateverTheFileEndsIn) {
    const std::pair<const char*, const char*> rows[] = {
        // before, after
        {"", "a\r\nb\r\n"},
        {"x\r\n", "x\r\na\r\nb\r\n"},
        {"x\n", "x\na\r\nb\r\n"},
        {"x\r\ny", "x\r\ny\r\na\r\nb\r\n"},
        {"x\r\ny\r", "x\r\ny\r\na\r\nb\r\n"},
    };
    for (const auto& [before, after] : rows) {
        const std::string path = Path("Zoë, 100%.sre");
        Put(path, before);
        EXPECT_EQ(files_.AppendLines(path, {"a", "b"}), std::nullopt);
        EXPECT_EQ(Content(path), after);
    }
    EXPECT_EQ(files_.AppendLines(Path("new"), {"first"}), std::nullopt);
    EXPECT_EQ(Content(Path("new")), "first\r\n");
}

// TARNIVAL_WRITES in the environment sets how many lines each of the two writes.
TEST_F(Files, TwoWritersLoseNothingAndKeepTheirOrder) {
    const int writes = FromEnvironment("TARNIVAL_WRITES", 500);
    const auto write = [&](char letter) {
        for (int i = 0; i < writes; ++i) {
            if (files_.AppendLines(Path("shared"), {letter + std::to_string(i)})) return false;
        }
        return true;
    };
    const pid_t other = StartChild([&] { return write('a'); });
    EXPECT_TRUE(write('b'));
    EXPECT_EQ(EndOf(other), 0);
    std::map<char, int> next;
    std::istringstream lines(Content(Path("shared")));
    for (std::string line; std::getline(lines, line);)
        ASSERT_EQ(line, line[0] + std::to_string(next[line[0]]++) + '\r');
    EXPECT_THAT(next, ElementsAre(std::pair('a', writes), std::pair('b', writes)));
}

TEST_F(Files, AShortWriteLeavesTheFileAsItWas) {
    const std::pair<const char*, std::string> rows[] = {
        {"a part fits", std::string(90, 'x') + "\r\n"},
        {"nothing fits", std::string(98, 'x') + "\r\n"},
        {"a torn line stays torn", std::string(95, 'x')},
        {"no file before", ""},
    };
    for (const auto& [says, before] : rows) {
        SCOPED_TRACE(says);
        const std::string path = Path("limited");
        ::unlink(path.c_str());
        if (!before.empty()) Put(path, before);
        EXPECT_TRUE(InChild([&, room = rlimit{100, 100}] {
            return ::setrlimit(RLIMIT_FSIZE, &room) == 0 &&
                   files_.AppendLines(path, {std::string(150, 'y')}) == "File too large";
        }));
        EXPECT_EQ(Content(path), before);
        EXPECT_EQ(files_.Exists(path), !before.empty());
    }
}

TEST_F(Files, WhatIsNoFileIsToldAndKeepsNobodyWaiting) {
    ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
    ASSERT_EQ(::mkdir(Path("folder").c_str(), 0700), 0);
    ASSERT_EQ(::symlink("/dev/zero", Path("device").c_str()), 0);
    ASSERT_EQ(::symlink("ring", Path("ring").c_str()), 0);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    ASSERT_LT(Path("socket").size(), sizeof address.sun_path);
    std::strcpy(address.sun_path, Path("socket").c_str());
    ASSERT_EQ(::bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    const std::pair<const char*, const char*> rows[] = {
        {"pipe", "It is not a file"},
        {"device", "It is not a file"},
        {"socket", "It is not a file"},
        {"folder", "Is a directory"},
        {"ring", "Too many levels of symbolic links"},
        {"missing/file", "No such file or directory"},
    };
    for (const auto& [name, cause] : rows) {
        SCOPED_TRACE(name);
        std::string content = "untouched";
        EXPECT_EQ(files_.AppendLines(Path(name), {"x"}), cause);
        EXPECT_EQ(files_.Read(Path(name), content), cause);
        EXPECT_EQ(content, "untouched");
        if (name != std::string("ring")) {
            EXPECT_NE(files_.Replace(Path(name), "x"), std::nullopt);
        }
    }
    ::close(socket);
    std::vector<std::string> names;
    Put(Path("file"), "x");
    ASSERT_EQ(::symlink("file", Path("link").c_str()), 0);
    EXPECT_EQ(files_.List(Folder(), names), std::nullopt);
    EXPECT_THAT(names, testing::UnorderedElementsAre("file", "link"));
    EXPECT_EQ(files_.List(Path("missing"), names), "No such file or directory");
}

TEST_F(Files, WhatNoMemoryHoldsIsNotRead) {
    Put(Path("large"), "x");
    // Without taking room on the disk.
    ASSERT_EQ(::truncate(Path("large").c_str(), static_cast<off_t>(DiskFiles::MostBytes) + 1), 0);
    std::string content;
    EXPECT_EQ(files_.Read(Path("large"), content), "It is larger than 512 MB");
    ASSERT_EQ(::truncate(Path("large").c_str(), off_t{1} << 40), 0);
    EXPECT_EQ(files_.Read(Path("large"), content), "It is larger than 512 MB");
    // A file of the kernel has no size before it is read.
    EXPECT_EQ(files_.Read("/proc/self/status", content), std::nullopt);
    EXPECT_THAT(content, HasSubstr("Pid:"));
}

TEST_F(Files, AreTheSameByWhateverWay) {
    Put(Path("file"), "x");
    Put(Path("other"), "x");
    ASSERT_EQ(::link(Path("file").c_str(), Path("hard").c_str()), 0);
    ASSERT_EQ(::symlink(Path("file").c_str(), Path("soft").c_str()), 0);
    for (const std::string& way : {Path("hard"), Path("soft"), Folder() + "//./file",
                                   Folder() + "/../" + Folder().substr(Folder().rfind('/') + 1) + "/file"}) {
        EXPECT_TRUE(files_.Same(Path("file"), way)) << way;
    }
    EXPECT_FALSE(files_.Same(Path("file"), Path("other")));
    EXPECT_FALSE(files_.Same(Path("missing"), Path("missing")));
    EXPECT_EQ(files_.Protection(Path("file")), std::nullopt);
    EXPECT_EQ(files_.Protection(Path("missing")), std::nullopt);
    ::chmod(Path("file").c_str(), 0444);
    EXPECT_EQ(files_.Protection(Path("soft")), "It is write-protected") << "also for root";
    EXPECT_EQ(files_.Protection(Folder()), "It is not a file");
}

TEST_F(Files, RightsThatAreMissingAreToldAndNothingChanges) {
    const std::string folder = Path("closed");
    ASSERT_EQ(files_.MakeFolder(folder), std::nullopt);
    Put(folder + "/old", "old\r\n");
    ::chmod((folder + "/old").c_str(), 0444);
    ::chmod(folder.c_str(), 0555);
    ::chmod(Folder().c_str(), 0755);
    EXPECT_TRUE(InChild([&] {
        if (!BecomeNobody()) return false;
        const std::string denied = "Permission denied";
        return files_.AppendLines(folder + "/new", {"x"}) == denied &&
               files_.AppendLines(folder + "/old", {"x"}) == denied &&
               files_.Replace(folder + "/old", "x") == denied && files_.Remove(folder + "/old") == denied &&
               files_.Rename(folder + "/old", folder + "/other") == denied &&
               files_.MakeFolder(folder + "/deeper") == denied;
    }));
    EXPECT_EQ(Content(folder + "/old"), "old\r\n");
    EXPECT_THAT(Names(folder), ElementsAre("old"));
    ::chmod(folder.c_str(), 0755);
}

TEST_F(Files, ReplacePutsAllOrNothingInPlace) {
    const std::string path = Path("fav.dat");
    EXPECT_EQ(files_.Replace(path, "first"), std::nullopt);
    ::chmod(path.c_str(), 0640);
    EXPECT_EQ(files_.Replace(path, std::string("second\0!", 8)), std::nullopt);
    EXPECT_EQ(Content(path), std::string("second\0!", 8));
    struct stat status {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777u, 0640u);

    EXPECT_TRUE(InChild([&, room = rlimit{100, 100}] {
        return ::setrlimit(RLIMIT_FSIZE, &room) == 0 &&
               files_.Replace(path, std::string(200, 'x')) == "File too large";
    }));
    EXPECT_EQ(Content(path), std::string("second\0!", 8));

    ASSERT_EQ(::symlink(path.c_str(), Path("link").c_str()), 0);
    EXPECT_EQ(files_.Replace(Path("link"), "third"), std::nullopt);
    EXPECT_EQ(Content(path), "third");
    EXPECT_THAT(Names(Folder()), testing::UnorderedElementsAre("fav.dat", "link"));
}

// Only what nobody else can have made or be making is swept.
TEST_F(Files, WhatAKilledProgramWasWritingIsSweptByTheNextWrite) {
    const std::string names[] = {"fav.dat.unfinished.a1B2c3", "fav.dat.unfinished.notes", "fav.dat.a1B2c3",
                                 "other.unfinished.a1B2c3"};
    for (const std::string& name : names) {
        Put(Path(name), "half");
        const utimbuf hourAgo{.actime = ::time(nullptr) - 3600, .modtime = ::time(nullptr) - 3600};
        ASSERT_EQ(::utime(Path(name).c_str(), &hourAgo), 0);
    }
    Put(Path("fav.dat.unfinished.young1"), "being written");
    EXPECT_EQ(files_.Replace(Path("fav.dat"), "whole"), std::nullopt);
    EXPECT_THAT(Names(Folder()), testing::UnorderedElementsAre("fav.dat", "fav.dat.unfinished.young1",
                                                               names[1], names[2], names[3]));
}

TEST_F(Files, RenameNeverOverwrites) {
    Put(Path("from"), "1");
    Put(Path("to"), "2");
    EXPECT_EQ(files_.Rename(Path("from"), Path("to")), "File exists");
    EXPECT_EQ(Content(Path("from")) + Content(Path("to")), "12");
    EXPECT_EQ(files_.Remove(Path("to")), std::nullopt);
    EXPECT_EQ(files_.Rename(Path("from"), Path("to")), std::nullopt);
    EXPECT_EQ(Content(Path("to")), "1");
    EXPECT_FALSE(files_.Exists(Path("from")));
    EXPECT_EQ(files_.Rename(Path("from"), Path("to2")), "No such file or directory");
}

TEST_F(Files, FoldersAndReading) {
    EXPECT_EQ(files_.MakeFolder(Path("a/b/c/")), std::nullopt);
    EXPECT_EQ(files_.MakeFolder(Path("a/b/c/")), std::nullopt);
    Put(Path("file"), "text");
    EXPECT_EQ(files_.MakeFolder(Path("file/deeper")), "Not a directory");

    std::string content = "untouched";
    EXPECT_EQ(files_.Read(Path("missing"), content), "No such file or directory");
    EXPECT_EQ(content, "untouched");
    const std::string large(200000, 'x');
    Put(Path("file"), large);
    EXPECT_EQ(files_.Read(Path("file"), content), std::nullopt);
    EXPECT_EQ(content, large);
}

/// Each test has settings of its own: the folder is Qt's, the application's name is new.
class Settings : public testing::Test {
protected:
    void SetUp() override {
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        application_ = std::string("Tarnival Test ") + test->name();
        settings_.SetReport([this](const std::string& text) { reports_.push_back(text); });
    }
    void TearDown() override { QDir(QString::fromStdString(Folder())).removeRecursively(); }
    [[nodiscard]] std::string Get(const QtSettings& store, const std::string& key) const {
        return store.GetSetting(application_, "Data", key, "default");
    }
    void Save(QtSettings& store, const std::string& key, const std::string& value) const {
        store.SaveSettings(application_, {{"Data", key, value}});
    }
    [[nodiscard]] std::string FileName() const { return QtSettings::FileName(application_); }
    [[nodiscard]] std::string Folder() const { return FileName().substr(0, FileName().rfind('/')); }

    std::string application_;
    std::vector<std::string> reports_;
    QtSettings settings_;
};

TEST_F(Settings, EveryTextComesBackFromTheDisk) {
    const QStringList texts = QStringLiteral(
                                  "| | two words |Smith, John|a;b=c|\"quoted\"|100%|%41|@Invalid()|@@|[Data]|"
                                  "back\\slash|line\nend|-1|00012|Zoë Ångström|日本語|\U0001F0CF|true")
                                  .split(QLatin1Char('|'));
    const auto key = [](qsizetype i) { return "key" + std::to_string(i); };
    for (qsizetype i = 0; i < texts.size(); ++i) Save(settings_, key(i), texts[i].toStdString());
    // Read by an object of another process, so that nothing can come from memory.
    EXPECT_TRUE(InChild([&] {
        const QtSettings other;
        for (qsizetype i = 0; i < texts.size(); ++i) {
            if (Get(other, key(i)) != texts[i].toStdString()) return false;
        }
        return Get(other, "missing") == "default";
    }));
    EXPECT_THAT(Content(FileName()), HasSubstr("key13=-1\n"));
    EXPECT_THAT(reports_, IsEmpty());
}

TEST_F(Settings, ValuesSavedTogetherArriveTogether) {
    Save(settings_, "a", "1");
    std::set<std::string> seen;
    std::jthread watch([&](const std::stop_token& stop) {
        while (!stop.stop_requested()) seen.insert(Content(FileName()));
    });
    settings_.SaveSettings(application_, {{"Data", "a", "2"}, {"Data", "b", "3"}, {"Users", "1", "Player1"}});
    watch = {};
    const std::string after = "[Data]\na=2\nb=3\n\n[Users]\n1=Player1\n";
    EXPECT_EQ(Content(FileName()), after);
    seen.erase("[Data]\na=1\n");
    seen.erase(after);
    EXPECT_THAT(seen, IsEmpty());
}

TEST_F(Settings, EveryReadSeesWhatAnotherHasWritten) {
    Save(settings_, "a", "1");
    EXPECT_EQ(Get(settings_, "a"), "1");
    for (const std::string value : {"2", "3", "4", "5"}) {
        EXPECT_TRUE(InChild([&] {
            QtSettings other;
            Save(other, "a", value);
            return true;
        }));
        EXPECT_EQ(Get(settings_, "a"), value);
        EXPECT_EQ(settings_.GetSection(application_, "Data").at("a"), value);
    }
    // Written, although it is what this program has written last.
    Save(settings_, "a", "1");
    EXPECT_EQ(Content(FileName()), "[Data]\na=1\n");
    // An editor may write into the file itself, as often as it likes, and the same size.
    for (int i = 0; i < 200; ++i) {
        const std::string value = std::to_string(100 + i);
        Put(FileName(), "[Data]\na=" + value + "\n");
        ASSERT_EQ(Get(settings_, "a"), value);
    }
    // In the middle of a change there may be anything: what was read before stands, and nothing is moved
    // away.
    Put(FileName(), "[Data]\na=6\nb");
    EXPECT_EQ(Get(settings_, "a"), "299");
    Put(FileName(), "[Data]\na=6\nb=7\n");
    EXPECT_EQ(Get(settings_, "a") + Get(settings_, "b"), "67");
    ASSERT_EQ(::unlink(FileName().c_str()), 0);
    EXPECT_EQ(Get(settings_, "a"), "default");
    EXPECT_THAT(reports_, IsEmpty());
}

TEST_F(Settings, AFileOfAnyEditorIsRead) {
    ASSERT_EQ(DiskFiles().MakeFolder(Folder()), std::nullopt);
    const char* const texts[] = {
        "\xEF\xBB\xBF[Data]\na=1\nb=Zo\xC3\xAB\n",
        "[Data]\r\na=1\r\nb=Zo\xC3\xAB\r\n",
        "[Data]\ra=1\rb=Zo\xC3\xAB",
        "\xEF\xBB\xBF[Data]\ra=1\r\n\nb=Zo\xC3\xAB\r",
        "[Data]\na=1\nb=Zo\xEB\n",
    };
    for (const char* text : texts) {
        Put(FileName(), text);
        const QtSettings store;
        EXPECT_EQ(Get(store, "a"), "1") << text;
        EXPECT_EQ(Get(store, "b"), "Zoë") << text;
    }
}

TEST_F(Settings, WhatIsNoSettingsFileIsToldAndKeepsNobodyWaiting) {
    ASSERT_EQ(DiskFiles().MakeFolder(Folder()), std::nullopt);
    const auto start = [&](const char* told) {
        QtSettings store;
        std::vector<std::string> reports;
        store.SetReport([&](const std::string& text) { reports.push_back(text); });
        EXPECT_EQ(Get(store, "a"), "default");
        EXPECT_EQ(Get(store, "a"), "default");
        ASSERT_THAT(reports, SizeIs(1));
        EXPECT_THAT(reports[0], HasSubstr(told));
        EXPECT_NE(store.ChangeSettings(application_, {{"Data", "a", "1"}}).has_value(), told[0] == 't')
            << told;
    };
    ASSERT_EQ(::mkfifo(FileName().c_str(), 0600), 0);
    start("could not be read: It is not a file");
    ASSERT_EQ(::unlink(FileName().c_str()), 0);
    ASSERT_EQ(::symlink("/dev/zero", FileName().c_str()), 0);
    start("could not be read: It is not a file");
    ASSERT_EQ(::unlink(FileName().c_str()), 0);
    Put(FileName(), "[Data]\n");
    ASSERT_EQ(::truncate(FileName().c_str(), off_t{1} << 40), 0);
    start("the settings start from their defaults");
    struct stat status {};
    ASSERT_EQ(::stat((FileName() + ".damaged-1").c_str(), &status), 0);
    EXPECT_EQ(status.st_size, off_t{1} << 40) << "kept as it is";
}

TEST_F(Settings, AreNotTakenForDamagedWhereNoCopyCanBeMade) {
    Save(settings_, "Zoom", "1.5");
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", "/proc/self");  // where nobody can make a file
    QtSettings other;
    other.SetReport([this](const std::string& text) { reports_.push_back(text); });
    EXPECT_EQ(Get(other, "Zoom"), "default");
    Save(other, "Zoom", "2");
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    EXPECT_THAT(reports_, ElementsAre(HasSubstr("There is no room in"), HasSubstr("could not be written")));
    EXPECT_EQ(Get(settings_, "Zoom"), "1.5");
    Save(other, "Deck", "502");
    EXPECT_EQ(Get(settings_, "Zoom"), "2") << "what was kept is written";
}

TEST_F(Settings, AStepIsAloneAndAllOrNothing) {
    constexpr int Steps = 100;
    const auto count = [&] {
        QtSettings store;
        for (int i = 0; i < Steps; ++i) {
            const bool alone = store.Alone(application_, [&] {
                const int before = std::stoi(store.GetSetting(application_, "Data", "count", "0"));
                if (store.ChangeSettings(application_, {{"Data", "count", std::to_string(before + 1)}}))
                    std::abort();
            });
            if (!alone) return false;
            ::usleep(500);  // somebody has to look at what came of it
        }
        return true;
    };
    const pid_t other = StartChild(count);
    EXPECT_TRUE(count());
    EXPECT_EQ(EndOf(other), 0);
    EXPECT_EQ(Get(settings_, "count"), std::to_string(2 * Steps));

    // Where the store cannot be written nobody changes it, and a step runs without a turn.
    ::chmod(FileName().c_str(), 0644);
    ::chmod(Folder().c_str(), 0555);
    EXPECT_TRUE(InChild([&] {
        if (!BecomeNobody()) return false;
        QtSettings store;
        bool ran = false;
        bool refused = false;
        (void)store.Alone(application_, [&] {
            ran = true;
            refused = store.ChangeSettings(application_, {{"Data", "count", "0"}}).has_value();
        });
        return ran && refused && Get(store, "count") != "0";
    }));
    ::chmod(Folder().c_str(), 0755);
}

TEST_F(Settings, ADamagedFileIsSetAsideAndKept) {
    const std::vector<std::string> damaged = {
        "[Data\nAutoplay=1\n",
        "[Data]\nAutoplay=1\nno equals sign here\n",
        std::string(300, '\0'),
        std::string("\x7f"
                    "ELF\x02\x01\0\0\n\n\xff\xfe rubbish",
                    20),
    };
    ASSERT_EQ(Get(settings_, "a"), "default");
    ASSERT_EQ(DiskFiles().MakeFolder(Folder()), std::nullopt);
    for (std::size_t i = 0; i < damaged.size(); ++i) {
        SCOPED_TRACE(i);
        Put(FileName(), damaged[i]);
        QtSettings store;
        // No one listens yet when the program reads its first setting.
        EXPECT_EQ(Get(store, "Autoplay"), "default");
        std::vector<std::string> told;
        store.SetReport([&](const std::string& text) { told.push_back(text); });
        const std::string aside = FileName() + ".damaged-" + std::to_string(i + 1);
        ASSERT_THAT(told, SizeIs(1));
        EXPECT_THAT(told[0], HasSubstr(aside));
        Save(store, "Autoplay", "0");
        EXPECT_EQ(Content(aside), damaged[i]);
        EXPECT_EQ(Content(FileName()), "[Data]\nAutoplay=0\n");
    }
}

TEST_F(Settings, AFileDamagedWhileTheProgramRunsIsNotOverwritten) {
    Save(settings_, "a", "1");
    const std::string rubbish = "[Data]\na=1\n" + std::string(100, '#') + "\nnot a setting";
    Put(FileName(), rubbish);
    Save(settings_, "b", "2");
    EXPECT_EQ(Content(FileName() + ".damaged-1"), rubbish);
    EXPECT_EQ(Get(settings_, "b"), "2");
    EXPECT_THAT(Content(FileName()), HasSubstr("b=2\n"));
    EXPECT_THAT(reports_, SizeIs(1));
}

TEST_F(Settings, WhatCannotBeWrittenIsKeptReportedOnceAndWrittenLater) {
    Save(settings_, "a", "1");
    const std::string folder = Folder();
    ::chmod(folder.c_str(), 0755);
    // A folder stands where the file belongs: that stops root, too.
    ASSERT_EQ(::rename(FileName().c_str(), (folder + "/away").c_str()), 0);
    ASSERT_EQ(::mkdir(FileName().c_str(), 0755), 0);
    Save(settings_, "b", "2");
    Save(settings_, "c", "3");
    EXPECT_EQ(Get(settings_, "b") + Get(settings_, "c"), "23");
    ASSERT_THAT(reports_, SizeIs(1));
    EXPECT_THAT(reports_[0], HasSubstr(FileName() + " could not be written"));

    ASSERT_EQ(::rmdir(FileName().c_str()), 0);
    ASSERT_EQ(::rename((folder + "/away").c_str(), FileName().c_str()), 0);
    Save(settings_, "d", "4");
    EXPECT_EQ(Content(FileName()), "[Data]\na=1\nb=2\nc=3\nd=4\n");
    EXPECT_THAT(reports_, SizeIs(1));
}

TEST(Calendar, WritesTheSameDigitsInEveryLocaleAndZone) {
    const QByteArray zone = qEnvironmentVariableIsSet("TZ") ? qgetenv("TZ") : ":/etc/localtime";
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    qputenv("TZ", "UTC-02:00");
    ::tzset();
    const QtCalendar calendar;
    EXPECT_EQ(calendar.Text(1072915200000), "2004-01-01 02:00:00");
    EXPECT_EQ(calendar.Text(1072915200000 + 3661999), "2004-01-01 03:01:01");
    EXPECT_GT(calendar.Now(), 1700000000000);
    QLocale::setDefault(before);
    qputenv("TZ", zone);
    ::tzset();
}

}  // namespace
