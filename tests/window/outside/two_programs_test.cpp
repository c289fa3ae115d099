// Two programs on one home, killed now and then: whatever they do to the players, every record that was
// confirmed is in exactly one player's view, every score file has an owner, no favourite or setting is lost,
// and nothing is imported twice.
//
// TARNIVAL_STEPS and TARNIVAL_KILLS in the environment set how long that goes on; by default it is short.
#include <atomic>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <map>
#include <random>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>

#include "engine/records/ImportedRecords.h"
#include "engine/records/mPlayers.h"
#include "engine/records/mStrayFiles.h"
#include "support/Child.h"
#include "support/Expect.h"
#include "support/FromEnvironment.h"
#include "window/outside/Program.h"

namespace {

/// What the programs tell of, a line each: a letter and a number. R, F: a record or favourite was confirmed;
/// r, f: it is about to be deleted with its file; A, B: the program of that letter has saved the number.
class Journal {
public:
    explicit Journal(const std::string& path)
        : file_(::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT, 0600)) {}
    ~Journal() { ::close(file_); }
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    void Tell(char what, const std::string& number) const {
        const std::string line = what + number + '\n';
        if (::write(file_, line.data(), line.size()) != static_cast<ssize_t>(line.size())) std::abort();
    }

private:
    int file_;
};

std::vector<std::string> Numbers(const std::string& path) {
    std::vector<std::string> numbers;
    std::string content;
    if (DiskFiles().Read(path, content)) return numbers;
    const bool scores = path.ends_with(cScore::Ending);
    const int refused = mScoreFile::ForEachLine(content, [&](std::string_view line) {
        mScoreFile::ScoreFields fields;
        const auto favourite = mScoreFile::ParseFav(line);
        if (scores && mScoreFile::ParseScore(line, fields)) numbers.emplace_back(fields.GameNo.Text);
        if (!scores && favourite) numbers.push_back(mGameNumber::Text(favourite->mGno));
        return scores ? !fields.Date.empty() : favourite.has_value();
    });
    EXPECT_EQ(refused, 0) << path;
    return numbers;
}

/// Tells what goes with a file before it goes.
class TellingFiles : public DiskFiles {
public:
    explicit TellingFiles(const Journal& journal) : journal_(journal) {}
    [[nodiscard]] FileError Remove(const std::string& path) override {
        for (const std::string& number : Numbers(path)) {
            journal_.Tell(path.ends_with(cScore::Ending) ? 'r' : 'f', number);
        }
        return DiskFiles::Remove(path);
    }

private:
    const Journal& journal_;
};

/// One of the two programs, doing anything at random.
class User {
public:
    User(char letter, const std::string& journal, std::uint32_t seed)
        : letter_(letter), journal_(journal), files_(journal_), program_(files_), random_(seed) {}

    /// False where the program complained of what is nobody's fault.
    bool Step(int number) {
        if (Below(3) == 0) seen_ = PlayerList::Read();  // else the dialog has been open for a while
        if (seen_.Names().empty()) seen_ = PlayerList::Read();
        const ShownPlayer player{seen_.Names()[Below(seen_.Names().size())], seen_.Version()};
        const int what = static_cast<int>(Below(100));
        if (what < 40)
            Record(number);
        else if (what < 50)
            Play(number);
        else if (what < 62)
            (void)mPlayers::Enter(player, Name());
        else if (what < 70)
            (void)mPlayers::Enter("", Name());
        else if (what < 76)
            mPlayers::Delete(player);
        else if (what < 86)
            (void)mPlayers::Select(player);
        else if (what < 94)
            Favour(number);
        else if (what < 95)
            gScore->ClearFav();
        else
            Save(number);
        const auto bad = [](const std::string& message) {
            return message.find("could not") != std::string::npos ||
                   message.find("busy") != std::string::npos;
        };
        for (const std::string& message : program_.Messages()) {
            if (!bad(message)) continue;
            std::fprintf(stderr, "%s\n", message.c_str());
            return false;
        }
        program_.Forms().Messages.clear();
        return true;
    }

private:
    [[nodiscard]] std::size_t Below(std::size_t limit) { return random_() % limit; }
    [[nodiscard]] std::string Name() {
        constexpr const char* Names[] = {"Ann", "ann", "Bea", "Bo", "Zoë", ".Cid", "D.sre", "Eve  Eve"};
        return Names[Below(std::size(Names))] + std::to_string(Below(4));
    }
    void Record(int number) {
        Program::Record(number);
        journal_.Tell('R', std::to_string(number));
    }
    void Play(int number) {
        mGen::StartGame(gData->GetGame(1 + static_cast<int>(Below(350))), static_cast<double>(number));
        if (!gData->Figures.GameRunning) return;
        mGen::CloseGame(0);
        journal_.Tell('R', std::to_string(number));
    }
    void Favour(int number) {
        if (gScore->AddFav("Klondike", static_cast<double>(number)))
            journal_.Tell('F', std::to_string(number));
    }
    void Save(int number) {
        gData->Layer().Settings.SaveSettings(gData->ProdName(),
                                             {{"Test", std::string(1, letter_), std::to_string(number)}});
        journal_.Tell(letter_, std::to_string(number));
    }

    char letter_;
    Journal journal_;
    TellingFiles files_;
    Program program_;
    std::mt19937 random_;
    PlayerList seen_;
};

/// A number that a program and its children have in common.
class SharedNumber {
public:
    SharedNumber()
        : place_(::mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS,
                        -1, 0)) {
        if (place_ == MAP_FAILED) throw std::runtime_error("no memory to share");
        number_ = new (place_) std::atomic<int>(0);
    }
    ~SharedNumber() { ::munmap(place_, sizeof(std::atomic<int>)); }
    SharedNumber(const SharedNumber&) = delete;
    SharedNumber& operator=(const SharedNumber&) = delete;

    std::atomic<int>& operator*() const { return *number_; }

private:
    void* place_;
    std::atomic<int>* number_;
};

class TwoPrograms : public testing::Test {
protected:
    void SetUp() override {
        before_ = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", folder_.path().toUtf8());
        const Program program;
        store_ = QtSettings::FileName(gData->ProdName());
    }
    void TearDown() override {
        qputenv("XDG_DATA_HOME", before_);
        for (const char* end : {"", ".unfinished", ".lock"}) std::remove((store_ + end).c_str());
    }

    [[nodiscard]] std::string JournalPath() const {
        return folder_.filePath(QStringLiteral("journal")).toStdString();
    }
    /// All that was told, by its letter, in order.
    [[nodiscard]] std::map<char, std::vector<std::string>> Told() const {
        std::map<char, std::vector<std::string>> told;
        std::ifstream file(JournalPath());
        for (std::string line; std::getline(file, line);) told[line.at(0)].push_back(line.substr(1));
        return told;
    }

private:
    QTemporaryDir folder_;
    QByteArray before_;
    std::string store_;
};

/// Everything confirmed is there once, unless it was deleted; nothing is there twice.
void ExpectKept(const std::vector<std::string>& confirmed, const std::vector<std::string>& deleted,
                const std::vector<std::string>& there) {
    std::map<std::string, int> times;
    for (const std::string& number : there) ++times[number];
    for (const auto& [number, count] : times) EXPECT_EQ(count, 1) << number;
    const std::set<std::string> gone(deleted.begin(), deleted.end());
    int lost = 0;
    for (const std::string& number : confirmed)
        lost += times.contains(number) || gone.contains(number) ? 0 : 1;
    EXPECT_EQ(lost, 0) << "of " << confirmed.size();
}

TEST_F(TwoPrograms, ImportTheSameRecordsOnce) {
    constexpr int Files = 40;
    SharedNumber arrived;
    const auto import = [&] {
        const Program program;
        for (int number = 1; number <= Files; ++number) {
            const std::string path = gData->AppDir() + std::to_string(::getpid());
            std::ofstream(path) << R"("2004-01-05 22:10:33","Klondike",)" << number << ",5,5,6,1\r\n";
            ImportedRecords records;
            if (!records.Read(path)) return false;
            ++*arrived;  // both at once
            while (*arrived < 2 * number) {
            }
            if (!records.AddTo("Player1", "")) return false;
        }
        return true;
    };
    const pid_t programs[] = {StartChild(import), StartChild(import)};
    for (const pid_t program : programs) EXPECT_EQ(EndOf(program), 0);
    const Program program;
    std::vector<std::string> all;
    for (int number = 1; number <= Files; ++number) all.push_back(std::to_string(number));
    EXPECT_EQ(Numbers(cScore::FileName("Player1")), all);
}

TEST_F(TwoPrograms, LoseNothingOfEachOther) {
    const int steps = FromEnvironment("TARNIVAL_STEPS", 200);
    const int kills = FromEnvironment("TARNIVAL_KILLS", 6);
    SharedNumber shared;
    std::atomic<int>& step = *shared;

    std::mt19937 random(20041101);  // NOLINT: the same plan at every run
    const auto start = [&](char letter) {
        const auto seed = static_cast<std::uint32_t>(random());
        return StartChild([&, letter, seed] {
            User user(letter, JournalPath(), seed);
            for (int number = ++step; number <= steps; number = ++step) {
                if (!user.Step(number)) return false;
            }
            return true;
        });
    };
    std::map<char, pid_t> programs{{'A', start('A')}, {'B', start('B')}};
    for (int kill = 1; kill <= kills; ++kill) {
        const int when = steps / (kills + 1) * kill;
        while (step < when) ::usleep(static_cast<unsigned>(random() % 2000));
        const char letter = random() % 2 == 0 ? 'A' : 'B';
        ::kill(programs[letter], SIGKILL);
        const int status = EndOf(programs[letter]);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "it had ended by itself";
        programs[letter] = start(letter);
    }
    for (const auto& [letter, program] : programs) EXPECT_EQ(EndOf(program), 0) << letter;

    const Journal journal(JournalPath());
    TellingFiles telling(journal);
    const Program program(telling);  // it may finish a deletion
    std::map<char, std::vector<std::string>> told = Told();
    const PlayerList list = PlayerList::Read();
    EXPECT_TRUE(list.IsTidy());
    std::vector<std::string> files;
    ASSERT_EQ(DiskFiles().List(gData->AppDir(), files), std::nullopt);
    for (const std::string& file : files) {
        if (!file.ends_with(cScore::Ending)) continue;
        EXPECT_TRUE(list.Has(file.substr(0, file.size() - 4))) << file << " has no owner";
    }
    gScore->OpenAllScore();
    std::vector<std::string> shown;
    for (int i = 1; i <= gScore->ScoreTop(); ++i)
        shown.push_back(mGameNumber::Text(gScore->GetScore(i).GameNo));
    ExpectKept(told['R'], told['r'], shown);
    ExpectKept(told['F'], told['f'], Numbers(cScore::FavFileName()));
    for (const char letter : {'A', 'B'}) {
        const auto& saved = told[letter];
        const std::string now = gData->Layer().Settings.GetSetting(gData->ProdName(), "Test", {letter}, "0");
        // What is on the disk may be one that a killed program could not tell any more.
        if (!saved.empty()) {
            EXPECT_GE(std::stoi(now), std::stoi(saved.back())) << letter;
        }
    }
    EXPECT_THAT(program.Messages(), IsEmpty());
    std::printf("%d steps, %d kills: %zu records and %zu favourites confirmed, %zu and %zu of them deleted\n",
                steps, kills, told['R'].size(), told['F'].size(), told['r'].size(), told['f'].size());
}

}  // namespace
