// Writes the score files of made-up players into a folder, and the lines that make them known.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>

#include "RecordMaker.h"
#include "engine/commands/mLoad.h"
#include "engine/commands/mMain.h"
#include "engine/outside/memorylayer.h"

namespace {

constexpr const char* Usage =
    "usage: tarnival-make-records FOLDER RECORDS-EACH [--players N] [--until YYYY-MM-DD] [--regional]\n"
    "Writes Player1.sre to PlayerN.sre (20 players unless told otherwise) and players.txt, whose lines\n"
    "belong into the section [Users] of the settings file.\n";

int Positive(const std::string& text) {
    std::size_t used = 0;
    const int value = std::stoi(text, &used);
    if (used != text.size() || value < 1) throw std::invalid_argument(text);
    return value;
}

void Write(const std::string& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << content;
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path);
}

RecordPlan Plan(int argc, char** argv) {
    RecordPlan plan;
    plan.RecordsEach = Positive(argv[2]);
    for (int i = 3; i < argc; ++i) {
        const std::string option = argv[i];
        if (option == "--regional") {
            plan.Regional = true;
        } else if (option == "--players" && i + 1 < argc) {
            plan.Players = Positive(argv[++i]);
        } else if (option == "--until" && i + 1 < argc) {
            const auto until = mDates::ParseFixed(argv[++i]);
            if (!until) throw std::invalid_argument(argv[i]);
            plan.Until = *until;
        } else {
            throw std::invalid_argument(option);
        }
    }
    return plan;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fputs(Usage, stderr);
        return 2;
    }
    try {
        const RecordPlan plan = Plan(argc, argv);
        const std::string folder = std::string(argv[1]) + '/';
        MemoryLayer layer;
        mLoad::Main(layer.Layer());
        mMain::Load();
        std::string players;
        for (int i = 1; i <= plan.Players; ++i) {
            const std::string name = mRecordMaker::PlayerName(i);
            Write(folder + name + ".sre", mRecordMaker::ScoreFile(plan, i));
            players += std::to_string(i) + '=' + name + '\n';
        }
        Write(folder + "players.txt", players + "100=" + mRecordMaker::PlayerName(1) + '\n');
        mLoad::UnloadMain();
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "tarnival-make-records: not understood: %s\n%s", error.what(), Usage);
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tarnival-make-records: %s\n", error.what());
        return 1;
    }
    return 0;
}
