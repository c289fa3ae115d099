// Nothing that was confirmed is lost where two programs write one file and where the disk is full, on a real
// disk.
//
// TARNIVAL_WRITES in the environment sets how many records each of two writers makes; by default few, so that
// a usual run of the tests stays short.
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <QTemporaryDir>

#include "engine/records/cScore.h"
#include "engine/records/mScoreFile.h"
#include "engine/state/cData.h"
#include "support/Child.h"
#include "window/outside/Program.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

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
        for (const char* end : {"", ".unfinished", ".lock"}) std::remove((settings_ + end).c_str());
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

    std::string path_;

private:
    QTemporaryDir folder_;
    QByteArray before_;
    std::string settings_;
};

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
