// The outside in memory: no window, no disk, a clock that stands until it is moved. Tests, tools and
// the text driver run the engine over it; what it is told is kept for a test to look at.
#pragma once

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "engine/outside/windowlayer.h"

/// Follows nothing; counts what it is told.
class MemoryStage : public CardStage {
public:
    void CardMoved(int) override { ++Moves; }
    void CardRaised(int) override { ++Raises; }
    void CardShown(int) override {}
    void CardChanged(int) override { ++Changes; }
    void MarkChanged(MarkKind, int) override {}
    void Refresh() override { ++Refreshes; }
    void ShowStep(double limit) override {
        constexpr double Refresh = 1000.0 / 60;
        ++Steps;
        Waited += std::min(limit, Refresh);
    }
    void BeginSteps() override { ++Begun; }
    /// Runs what a test wants to happen in the middle of a deal.
    void LetEventsRun() override {
        if (OnEvents) OnEvents();
    }

    long Moves = 0, Raises = 0, Changes = 0, Refreshes = 0, Steps = 0, Begun = 0;
    double Waited = 0;  ///< milliseconds that a screen would have shown the steps
    std::function<void()> OnEvents;
};

class MemorySettings : public SettingsStore {
public:
    [[nodiscard]] std::string GetSetting(const std::string& application, const std::string& section,
                                         const std::string& key,
                                         const std::string& defaultValue) const override;
    [[nodiscard]] std::map<std::string, std::string> GetSection(const std::string& application,
                                                                const std::string& section) const override;
    void SaveSettings(const std::string& application, const std::vector<SettingValue>& values) override;
    [[nodiscard]] FileError ChangeSettings(const std::string& application,
                                           const std::vector<SettingValue>& values) override;
    [[nodiscard]] bool Alone(const std::string& application, const std::function<void()>& step) override;
    [[nodiscard]] std::string Path(const std::string&) const override { return {}; }

    /// While it holds a cause, no change is made.
    FileError Fault;
    bool Busy = false;  ///< another program does not let this one in
    /// By "section/key"; the application is always the one program.
    std::map<std::string, std::string, std::less<>> Values;

private:
    mutable std::string path_;  // kept to spare an allocation at each of the many reads
};

class MemoryFiles : public FileSystem {
public:
    [[nodiscard]] std::string DataFolder() const override { return "/data/"; }
    [[nodiscard]] char Separator() const override { return '/'; }
    [[nodiscard]] bool Exists(const std::string& path) const override;
    [[nodiscard]] FileError MakeFolder(const std::string& path) override;
    [[nodiscard]] FileError AppendLines(const std::string& path,
                                        const std::vector<std::string>& lines) override;
    [[nodiscard]] FileError List(const std::string& folder, std::vector<std::string>& names) const override;
    [[nodiscard]] bool Same(const std::string& one, const std::string& other) const override;
    [[nodiscard]] FileError Protection(const std::string& path) const override;
    [[nodiscard]] FileError Read(const std::string& path, std::string& content) const override;
    [[nodiscard]] FileError Replace(const std::string& path, const std::string& content) override;
    [[nodiscard]] FileError Remove(const std::string& path) override;
    [[nodiscard]] FileError Rename(const std::string& from, const std::string& to) override;

    std::set<std::string> Protected;  ///< paths
    /// While it holds a cause, every operation that writes fails with it and changes nothing.
    FileError Fault;
    std::map<std::string, std::string> Contents;  ///< by path; a folder has its separator at the end
};

class MemoryCalendar : public Calendar {
public:
    [[nodiscard]] Moment Now() const override { return now_; }
    /// As if the local time were UTC.
    [[nodiscard]] std::string Text(Moment moment) const override;
    [[nodiscard]] RegionalFormat Regional() const override { return Format; }
    void Advance(double seconds) { now_ += std::llround(seconds * 1000); }

    RegionalFormat Format;  ///< as in the United States

private:
    Moment now_ = 1072915200000;  // 2004-01-01 00:00:00
};

class MemorySounds : public SoundPlayer {
public:
    void Play(const std::string& wave) override { Played.push_back(wave); }
    std::vector<std::string> Played;
};

class MemoryForms : public Forms {
public:
    void Inform(const std::string& text) override { Messages.push_back(text); }
    [[nodiscard]] bool Ask(const std::string& question) override;
    [[nodiscard]] std::optional<std::string> AskSaveFile(const std::string& name,
                                                         const std::string& filter) override;
    [[nodiscard]] std::optional<std::string> AskOpenFile(const std::string&) override { return OpenFile; }
    [[nodiscard]] bool ShowProgress(const std::string& task, int percent) override;
    [[nodiscard]] bool Listens() const override { return Listening; }
    void Announce(const std::string& text) override { Heard.push_back(text); }
    void SetCaption(const std::string& caption) override { Caption = caption; }
    void ShowRecent(const std::vector<std::string>& names) override { Recent = names; }
    [[nodiscard]] AfterGame ShowFinish(const FinishSummary& summary) override;
    void ShowSelect() override { ++SelectShown; }
    void LayoutTable() override {}
    void PaintBackground() override {}

    std::vector<std::string> Messages;
    bool Listening = true;
    std::vector<std::string> Heard;
    std::vector<std::string> Questions;
    bool Answer = false;                      ///< to every question
    std::vector<std::string> SaveQuestions;   ///< name, a bar, filter
    std::optional<std::string> SaveFile;      ///< the user's choice, each time
    std::vector<std::string> FirstSaveFiles;  ///< what the user chooses before, in turn
    std::optional<std::string> OpenFile;      ///< the user's choice of a file to read
    int CancelAt = 101;                       ///< the percentage at which the user cancels a long task
    int LastPercent = -1;
    std::string Caption;
    std::vector<std::string> Recent;
    int Finished = 0;  ///< how often the end-of-game dialog came up
    FinishSummary Last;
    AfterGame Choice = AfterGame::Nothing;  ///< what the player chooses there, once
    std::function<void()> OnFinish;
    int SelectShown = 0;
};

class MemoryHelp : public HelpViewer {
public:
    void ShowContext(int context) override { Contexts.push_back(context); }
    void ShowContents() override { Contexts.push_back(0); }
    void CloseAll() override { Contexts.clear(); }
    std::vector<int> Contexts;
};

class MemoryLayer {
public:
    [[nodiscard]] WindowLayer Layer() { return {Stage, Settings, Files, Calendar, Sounds, Forms, Help}; }

    MemoryStage Stage;
    MemorySettings Settings;
    MemoryFiles Files;
    MemoryCalendar Calendar;
    MemorySounds Sounds;
    MemoryForms Forms;
    MemoryHelp Help;
};
