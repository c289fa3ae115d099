// The outside of the running program: the adapters that join the engine to Qt.
#pragma once

#include <memory>
#include <optional>

#include <QPointer>
#include <QProgressDialog>

#include "engine/outside/DiskFiles.h"
#include "engine/outside/windowlayer.h"
#include "window/controls/mDialog.h"
#include "window/help/ProgramHelp.h"
#include "window/outside/QtCalendar.h"
#include "window/outside/QtSettings.h"
#include "window/outside/QtSounds.h"
#include "window/table/WonTable.h"

class frmMain;

/// Messages and forms over the main window; before it exists, and while none is set, messages stand alone.
class ProgramForms : public Forms {
public:
    void SetMain(frmMain* window) { main_ = window; }

    void Inform(const std::string& text) override;
    [[nodiscard]] bool Ask(const std::string& question) override;
    [[nodiscard]] bool AskToKeep(const std::string& question) override;
    void InformCritical(const std::string& text) override;
    [[nodiscard]] bool AskCritical(const std::string& question) override;
    [[nodiscard]] std::optional<std::string> AskSaveFile(const std::string& name,
                                                         const std::string& filter) override;
    [[nodiscard]] std::optional<std::string> AskOpenFile(const std::string& filter) override;
    [[nodiscard]] bool ShowProgress(const std::string& task, int percent) override;
    [[nodiscard]] bool Listens() const override;
    void Announce(const std::string& text) override;
    void SetCaption(const std::string& caption) override;
    void ShowRecent(const std::vector<std::string>& names) override;
    void KeepTable() override;
    [[nodiscard]] AfterGame ShowFinish(const FinishSummary& summary) override;
    void ShowSelect() override;
    void LayoutTable() override;
    void PaintBackground() override;

private:
    frmMain* main_ = nullptr;
    std::unique_ptr<WonTable> won_;  // from the win to the end of its dialog
    QPointer<QProgressDialog> progress_;
    std::optional<mDialog::BusyPointer> busy_;  // until a task has begun to count
};

/// The table of the main window as a stage; before it exists, nobody watches.
class ProgramStage : public CardStage {
public:
    void SetTable(CardStage* table) { table_ = table; }

    void CardMoved(int PicID) override;
    void CardRaised(int PicID) override;
    void CardShown(int PicID) override;
    void CardChanged(int PicID) override;
    void MarkChanged(MarkKind kind, int index) override;
    void Refresh() override;
    void ShowStep(double limit) override;
    void BeginSteps() override;
    void LetEventsRun() override;

private:
    CardStage* table_ = nullptr;
};

class ProgramLayer {
public:
    ProgramLayer();
    [[nodiscard]] WindowLayer Layer();
    /// The engine's objects exist before the main window, which is built behind the splash. The window must
    /// outlive them.
    void SetMain(frmMain* window);

private:
    ProgramForms forms_;
    ProgramStage stage_;
    QtSettings settings_;
    DiskFiles files_;
    QtCalendar calendar_;
    QtSounds sounds_;
    ProgramHelp help_;
};
