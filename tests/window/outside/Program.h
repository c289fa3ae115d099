// The program without its windows: the engine over the files and the settings of the machine.
#pragma once

#include <string>
#include <vector>

#include "engine/commands/mGen.h"
#include "engine/commands/mLoad.h"
#include "engine/outside/DiskFiles.h"
#include "engine/outside/memorylayer.h"
#include "engine/records/cScore.h"
#include "engine/state/cData.h"
#include "window/outside/QtSettings.h"

/// Files and settings are real, the rest is in memory; every question is answered with Yes. Only one can live
/// at a time in a process.
class Program {
public:
    Program() : Program(files_) {}
    /// Over files that do something of their own.
    explicit Program(FileSystem& files) {
        settings_.SetReport([this](const std::string& message) { outside_.Forms.Inform(message); });
        outside_.Forms.Answer = true;
        mLoad::Main({outside_.Stage, settings_, files, outside_.Calendar, outside_.Sounds, outside_.Forms,
                     outside_.Help});
        mGen::InitApp();
        gData->Figures.CurGName = "Klondike";
    }
    ~Program() {
        outside_.Forms.Answer = false;  // nothing is tried again and again
        mLoad::UnloadMain();
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    static void Record(int number) {
        gData->Figures.CurGNo = static_cast<double>(number);
        gScore->AddScore(1);
    }
    [[nodiscard]] const std::vector<std::string>& Messages() const { return outside_.Forms.Messages; }
    [[nodiscard]] MemoryForms& Forms() { return outside_.Forms; }

private:
    MemoryLayer outside_;
    QtSettings settings_;
    DiskFiles files_;
};
