// Nothing that was confirmed is lost: the program killed at any moment of whatever it writes, two programs
// at once, a full disk and a folder without rights, all on a real disk.
//
// TARNIVAL_KILLS and TARNIVAL_WRITES in the environment set how often the program is killed in each kind of
// work and how many records each of two writers makes; by default few, so that a usual run of the tests
// stays short.
#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QTemporaryDir>

#include "engine/commands/mGen.h"
#include "engine/records/cScore.h"
#include "engine/records/mPlayers.h"
#include "engine/records/mScoreFile.h"
#include "engine/state/cData.h"
#include "support/Child.h"
#include "tools/RandomPlayer.h"
#include "window/outside/Program.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAreArray;

namespace {

class Durability : public testing::Test {
protected:
    void SetUp() override {
        before_ = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", folder_.path().toUtf8());
        ::chmod(folder_.path().toStdString().c_str(), 0777);
        const Program program;
        path_ = cScore::FileName("Player1");
        settings_ = QtSettings::FileName(gData->ProdName());
    }
    void TearDown() override {
        qputenv("XDG_DATA_HOME", before_);
        // The folder of the settings is Qt's, one for all tests.
        for (const char* end : {"", ".new", ".lock"}) std::remove((settings_ + end).c_str());
    }

    [[nodiscard]] std::string Content() const {
        std::ifstream file(path_, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// The numbers of all records in the file, each of which must be whole.
    [[nodiscard]] std::vector<int> Numbers() const {
        std::vector<int> numbers;
        const std::string content = Content();
        EXPECT_TRUE(content.empty() || content.ends_with("\r\n"));
        const int broken = mScoreFile::ForEachLine(content, [&](std::string_view line) {
            mScoreFile::ScoreFields fields;
            if (!mScoreFile::ParseScore(line, fields)) return false;
            numbers.push_back(std::stoi(std::string(fields.GameNo.Text)));
            return true;
        });
        EXPECT_EQ(broken, 0);
        return numbers;
    }

    [[nodiscard]] std::string Folder() const { return path_.substr(0, path_.rfind('/')); }

    std::string path_;

private:
    QTemporaryDir folder_;
    QByteArray before_;
    std::string settings_;
};

/// A step of some work; steps count on over all processes that do it. When it returns, the user has been
/// told, in words or on the screen, that the step is done.
using Step = std::function<void(int step)>;

/// A process that works on and on, telling each step that was done, and never ends by itself.
class EndlessWorker {
public:
    EndlessWorker(const Step& work, int first) {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
        child_ = StartChild([&] {
            ::close(ends[0]);
            const Program program;
            for (int step = first;; ++step) {
                work(step);
                if (!program.Messages().empty()) return false;
                if (::write(ends[1], &step, sizeof step) != sizeof step) return false;
            }
        });
        ::close(ends[1]);
        pipe_ = ends[0];
    }
    ~EndlessWorker() { ::close(pipe_); }
    EndlessWorker(const EndlessWorker&) = delete;
    EndlessWorker& operator=(const EndlessWorker&) = delete;

    /// The next step told; 0 when the process has ended.
    [[nodiscard]] int Told() const {
        int step = 0;
        return ::read(pipe_, &step, sizeof step) == sizeof step ? step : 0;
    }
    /// Answers whether it had run until then.
    [[nodiscard]] bool Kill() const {
        ::kill(child_, SIGKILL);
        return WIFSIGNALED(EndOf(child_));
    }

private:
    pid_t child_ = -1;
    int pipe_ = -1;
};

class KilledWhile : public Durability {
protected:
    /// Kills the work at random moments. The next start must find what `last` or, where the kill came
    /// after the writing and before the telling, the step behind it left: `find` answers which.
    void Run(const Step& work, const std::function<int(int last)>& find) const {
        const int kills = FromEnvironment("TARNIVAL_KILLS", 3);
        std::mt19937 random(20041101);
        std::uniform_int_distribution<int> pause(0, 20000);  // microseconds
        int found = 0;
        for (int run = 0; run < kills; ++run) {
            SCOPED_TRACE(run);
            const EndlessWorker worker(work, found + 1);
            int last = worker.Told();
            ASSERT_GT(last, 0) << "it did nothing";
            std::this_thread::sleep_for(std::chrono::microseconds(pause(random)));
            ASSERT_TRUE(worker.Kill());
            for (int told = worker.Told(); told != 0; told = worker.Told()) last = told;
            const Program program;
            found = find(last);
            ASSERT_GE(found, last);
            ASSERT_LE(found, last + 1);
            ASSERT_THAT(program.Messages(), IsEmpty());
        }
        RecordProperty("steps", found);
    }
    /// The last of the numbers 1, 2, 3 … in the file, each once and in order.
    [[nodiscard]] int Counted() const {
        const std::vector<int> numbers = Numbers();
        for (std::size_t i = 0; i < numbers.size(); ++i) EXPECT_EQ(numbers[i], static_cast<int>(i) + 1);
        return static_cast<int>(numbers.size());
    }
};

TEST_F(KilledWhile, Recording) {
    Run([](int step) { Program::Record(step); }, [this](int) { return Counted(); });
}

TEST_F(KilledWhile, DealingAndPlaying) {
    Run(
        [](int step) {
            constexpr int Actions = 20;
            RandomPlayer player(static_cast<std::uint32_t>(step));
            mGen::StartGame(gData->GetGame(1 + step % gData->TotalGames()), static_cast<double>(step));
            for (int i = 0; i < Actions && gData->Figures.GameRunning; ++i) player.Act();
            if (gData->Figures.GameRunning) mGen::CloseGame(0);
        },
        [this](int) { return Counted(); });
}

TEST_F(KilledWhile, ChangingSettings) {
    constexpr int Base = 1000;  // above the default
    Run([](int step) { gData->Set(Setting::CustomColor, Base + step); },
        [](int) { return gData->Get(Setting::CustomColor) - Base; });
}

TEST_F(KilledWhile, RenamingAPlayer) {
    const auto name = [](int step) { return "Name" + std::to_string(step); };
    {
        const Program program;
        gData->SetPlayer(1, name(0), true);
        gData->SetPlayer(2, "Other", false);
        for (int i = 1; i <= 3; ++i) Program::Record(i);
    }
    Run([&](int step) { (void)mPlayers::Enter(name(step - 1), name(step)); },
        [&](int) {
            const std::string player = gData->GetPlayer(1);
            EXPECT_THAT(mPlayers::Names(), ElementsAre(player, "Other"));
            EXPECT_EQ(gData->CurPlayer(), player);
            gScore->OpenAllScore();
            EXPECT_EQ(gScore->PlayerStat(player).Played, 3);
            return std::stoi(player.substr(name(0).size() - 1));
        });
}

TEST_F(KilledWhile, DeletingAndAddingPlayers) {
    {
        const Program program;
        for (int i = 1; i <= 4; ++i)
            gData->SetPlayer(i, std::string("ABCD", static_cast<std::size_t>(i)), i == 1);
        gData->SetCurPlayer("ABCD");
        Program::Record(1);
        gData->SetCurPlayer("A");
    }
    const auto there = [] {
        const std::vector<std::string> names = mPlayers::Names();
        return std::find(names.begin(), names.end(), "AB") != names.end();
    };
    Run(
        [&](int) {
            if (there()) return mPlayers::Delete("AB");
            (void)mPlayers::Enter("", "AB");
        },
        [&](int last) {
            std::vector<std::string> expected{"A", "ABC", "ABCD"};
            if (there()) expected.emplace_back("AB");
            EXPECT_THAT(mPlayers::Names(), UnorderedElementsAreArray(expected));
            gScore->OpenAllScore();
            EXPECT_EQ(gScore->PlayerStat("ABCD").Played, 1);
            EXPECT_EQ(gScore->ScoreTop(), 1);
            return last;
        });
}

TEST_F(KilledWhile, Exporting) {
    const std::string file = Folder() + "/Scoreboard.txt";
    const auto content = [&] {
        std::ifstream stream(file, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(stream), {});
    };
    const auto write = [&](int) {
        gScore->OpenAllScore();
        if (!gScore->WriteStat(file)) throw std::runtime_error("no export");
    };
    {
        const Program program;
        for (int i = 1; i <= 100; ++i) Program::Record(i);
        write(0);
    }
    const std::string whole = content();
    Run(write, [&](int last) {
        EXPECT_EQ(content(), whole);
        return last;
    });
}

TEST_F(Durability, TwoProgramsRecordIntoOneFile) {
    const int writes = FromEnvironment("TARNIVAL_WRITES", 200);
    std::array<pid_t, 2> writers{};
    for (int writer = 0; writer < 2; ++writer) {
        writers[static_cast<std::size_t>(writer)] = StartChild([=] {
            const Program program;
            for (int i = 0; i < writes; ++i) Program::Record(writer + 2 * i);
            return program.Messages().empty();
        });
    }
    for (const pid_t writer : writers) EXPECT_EQ(EndOf(writer), 0);
    const std::vector<int> numbers = Numbers();
    EXPECT_THAT(numbers, SizeIs(2 * static_cast<std::size_t>(writes)));
    std::array<int, 2> next{0, 1};
    for (const int number : numbers) {
        int& expected = next[static_cast<std::size_t>(number % 2)];
        ASSERT_EQ(number, expected) << "a writer's records stand in its own order";
        expected += 2;
    }
}

/// What a program that could not write told, and that it wrote all of it in the end.
void ExpectKept(const Program& program, const char* cause) {
    ASSERT_THAT(program.Messages(), SizeIs(1));
    EXPECT_THAT(program.Messages()[0], HasSubstr(cScore::FileName("Player1") + ": " + cause));
}

TEST_F(Durability, AFullDiskKeepsTheOldFileAndTheNewRecord) {
    EXPECT_TRUE(InChild([&] {
        const Program program;
        Program::Record(1);
        const std::string before = Content();
        // A part of the next line has room.
        rlimit limit{before.size() + 10, RLIM_INFINITY};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return false;
        Program::Record(2);
        ExpectKept(program, "File too large");
        EXPECT_EQ(Content(), before);
        limit.rlim_cur = RLIM_INFINITY;
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return false;
        Program::Record(3);
        EXPECT_THAT(program.Messages(), SizeIs(1));
        return !testing::Test::HasFailure();
    }));
    EXPECT_THAT(Numbers(), ElementsAre(1, 2, 3));
}

}  // namespace
