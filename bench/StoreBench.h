// What the benchmarks of the records share: made-up players with their files in a folder of their own.
#pragma once

#include <malloc.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <utility>

#include "RecordMaker.h"
#include "engine/commands/mLoad.h"
#include "engine/commands/mMain.h"
#include "engine/outside/DiskFiles.h"
#include "engine/outside/memorylayer.h"
#include "engine/records/cScore.h"
#include "engine/state/cData.h"

/// The files of the machine under a folder of their own.
class BenchFiles : public DiskFiles {
public:
    explicit BenchFiles(std::string folder) : folder_(std::move(folder)) {}
    [[nodiscard]] std::string DataFolder() const override { return folder_ + '/'; }

private:
    std::string folder_;
};

/// The engine over real files; all else is memory. The last games are of today.
class StoreBench {
public:
    explicit StoreBench(const RecordPlan& plan)
        : Folder((std::filesystem::temp_directory_path() / ("tarnival-bench-" + std::to_string(::getpid())))
                     .string()),
          files_(Folder) {
        std::filesystem::create_directories(Folder);
        mLoad::Main({Memory.Stage, Memory.Settings, files_, Memory.Calendar, Memory.Sounds, Memory.Forms,
                     Memory.Help});
        mMain::Load();
        // The memory's clock starts in 2004.
        constexpr double Day = 86400.0;
        Memory.Calendar.Advance(Day * (mDates::DayNumber(plan.Until) - mDates::DayNumber(mDates::Now())));
        for (int i = 1; i <= plan.Players; ++i) {
            const std::string name = mRecordMaker::PlayerName(i);
            gData->SetPlayer(i, name, i == 1);
            std::ofstream(cScore::FileName(name), std::ios::binary) << mRecordMaker::ScoreFile(plan, i);
        }
        ::malloc_trim(0);
    }
    ~StoreBench() {
        mLoad::UnloadMain();
        std::filesystem::remove_all(Folder);
    }
    StoreBench(const StoreBench&) = delete;
    StoreBench& operator=(const StoreBench&) = delete;

    const std::string Folder;
    MemoryLayer Memory;

private:
    BenchFiles files_;
};

[[nodiscard]] inline double Milliseconds(const std::function<void()>& task) {
    const auto start = std::chrono::steady_clock::now();
    task();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}
