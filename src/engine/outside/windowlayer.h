// All that the engine needs of the outside, as small interfaces without data. The program implements
// them with its window toolkit; tests and the text driver implement them in memory.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// Which array of pile marks a mark belongs to.
enum class MarkKind { Home, Right, Res, Waste, Stock };

/// The screen that follows the card and mark records of the plate (table/cPlate.h). A view is told
/// what changed and reads the rest from the record.
class CardStage {
public:
    virtual ~CardStage() = default;
    virtual void CardMoved(int PicID) = 0;    ///< Left or Top changed
    virtual void CardRaised(int PicID) = 0;   ///< brought to the front
    virtual void CardShown(int PicID) = 0;    ///< Visible changed
    virtual void CardChanged(int PicID) = 0;  ///< face, value or picture: draw anew
    virtual void MarkChanged(MarkKind kind, int index) = 0;
    /// Repaints the plate at once, without letting events run.
    virtual void Refresh() = 0;
    /// Repaints the plate and keeps it so for one refresh of the screen, but no longer than `limit`
    /// milliseconds, without letting events run. A step whose time is over before it could be painted may
    /// be left to the next one.
    virtual void ShowStep(double limit) = 0;
    /// A command begins whose steps share a time, which is counted from now on.
    virtual void BeginSteps() = 0;
    /// Lets pending window events run.
    virtual void LetEventsRun() = 0;
};

/// What a file operation answers: nothing when it was done, else the cause as a text for the user.
using FileError = std::optional<std::string>;

/// A text value under a section and a key.
struct SettingValue {
    std::string Section;
    std::string Key;
    std::string Value;
};

/// Text values under an application, a section and a key. Every read gives what the store holds at that
/// moment, whichever program has written it.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    [[nodiscard]] virtual std::string GetSetting(const std::string& application, const std::string& section,
                                                 const std::string& key,
                                                 const std::string& defaultValue) const = 0;
    /// All values of a section as they are at one moment, by key.
    [[nodiscard]] virtual std::map<std::string, std::string> GetSection(const std::string& application,
                                                                        const std::string& section) const = 0;
    /// Returns when the values are on disk, where they arrive all at once. Values that cannot be written are
    /// kept, which the user is told.
    virtual void SaveSettings(const std::string& application, const std::vector<SettingValue>& values) = 0;
    /// The same, but values that cannot be written are not kept: all stays as it was.
    [[nodiscard]] virtual FileError ChangeSettings(const std::string& application,
                                                   const std::vector<SettingValue>& values) = 0;
    /// Runs a step in which no other program changes the store; a step inside a step is part of it. False
    /// where another program did not let this one in for five seconds: then the step has not run. Where the
    /// store cannot be written, by nobody, the step runs all the same.
    [[nodiscard]] virtual bool Alone(const std::string& application, const std::function<void()>& step) = 0;
    /// How the paths of all the store's files begin; empty where it has none.
    [[nodiscard]] virtual std::string Path(const std::string& application) const = 0;
};

/// Files and folders; paths are UTF-8. No operation leaves half of its work behind.
class FileSystem {
public:
    virtual ~FileSystem() = default;
    /// The folder for the user's application data, with a separator at its end; empty where the
    /// platform gives none.
    [[nodiscard]] virtual std::string DataFolder() const = 0;
    [[nodiscard]] virtual char Separator() const = 0;
    [[nodiscard]] virtual bool Exists(const std::string& path) const = 0;
    [[nodiscard]] virtual FileError MakeFolder(const std::string& path) = 0;
    /// Appends whole lines, each ended by CR LF, with one write, and has them on disk before it
    /// returns. A last line that lacks its end is ended first. On failure the file is as before.
    [[nodiscard]] virtual FileError AppendLines(const std::string& path,
                                                const std::vector<std::string>& lines) = 0;
    /// The names of the files in a folder, in no order.
    [[nodiscard]] virtual FileError List(const std::string& folder,
                                         std::vector<std::string>& names) const = 0;
    /// Whether two paths lead to one file or folder, by whatever ways.
    [[nodiscard]] virtual bool Same(const std::string& one, const std::string& other) const = 0;
    /// Why a file must not be replaced, such as one that is write-protected; nothing where there is none.
    [[nodiscard]] virtual FileError Protection(const std::string& path) const = 0;
    /// Reads a whole file into `content`. What is no file, such as a device or a pipe, is a fault, and so is
    /// one that is too large for the memory of a usual machine.
    [[nodiscard]] virtual FileError Read(const std::string& path, std::string& content) const = 0;
    /// Replaces a whole file in one step.
    [[nodiscard]] virtual FileError Replace(const std::string& path, const std::string& content) = 0;
    [[nodiscard]] virtual FileError Remove(const std::string& path) = 0;
    /// Never overwrites: fails where `to` exists.
    [[nodiscard]] virtual FileError Rename(const std::string& from, const std::string& to) = 0;
};

/// A moment: milliseconds since 1970-01-01 00:00:00 UTC.
using Moment = std::int64_t;

/// How the user's region writes dates. A pattern holds d dd (day), M MM MMM (month), yy yyyy, h hh H HH,
/// m mm, s ss, AP ap A a (morning or afternoon), t (time zone) and texts, those with letters in single
/// quotes.
struct RegionalFormat {
    std::string ShortDate = "M/d/yyyy";
    std::string LongTime = "h:mm:ss AP";
    std::string Morning = "AM";
    std::string Afternoon = "PM";
    std::array<std::string, 12> Months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};  ///< abbreviated
    char32_t ZeroDigit = U'0';
};

class Calendar {
public:
    virtual ~Calendar() = default;
    [[nodiscard]] virtual Moment Now() const = 0;
    /// The moment in local time as "yyyy-MM-dd hh:mm:ss".
    [[nodiscard]] virtual std::string Text(Moment moment) const = 0;
    [[nodiscard]] virtual RegionalFormat Regional() const = 0;
};

class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;
    /// Plays a wave ("START", "CARDUP", "CARDDOWN", "AUTOPLAY", "UNDO", "WIN") without waiting and
    /// without stopping one that plays.
    virtual void Play(const std::string& wave) = 0;
};

enum class MessageIcon { Information, Question };

/// What the end-of-game dialog shows.
struct FinishSummary {
    std::string GameName;
    std::vector<std::string> Lines;  ///< game, player, time, moves, score
    int Score = 0;                   ///< for the chart: 0 where the score is negative
    int Moves = 0;
    int Seconds = 0;
};

/// What the player chose to do after the end of a game; it begins only once the chain of moves that
/// won the game has returned.
enum class AfterGame { Nothing, NewGame, SelectGame, RestartGame };

/// Messages and forms.
class Forms {
public:
    virtual ~Forms() = default;
    virtual void Inform(const std::string& text) = 0;
    /// True for Yes. It takes something away for good, so a hasty Return answers No.
    [[nodiscard]] virtual bool Ask(const std::string& question) = 0;
    /// The same where it is No that loses something.
    [[nodiscard]] virtual bool AskToKeep(const std::string& question) { return Ask(question); }
    // The same with the icon that warns.
    virtual void InformCritical(const std::string& text) { Inform(text); }
    [[nodiscard]] virtual bool AskCritical(const std::string& question) { return Ask(question); }
    /// The path of a file to write, asked of the user, who has agreed to replace it if it exists;
    /// nothing where the user cancels. `name` is offered; `filter` reads "Text File (*.txt) |*.txt".
    [[nodiscard]] virtual std::optional<std::string> AskSaveFile(const std::string& name,
                                                                 const std::string& filter) = 0;
    /// The path of a file to read, asked of the user; nothing where the user cancels. `filter` reads
    /// "Records (*.csv *.sre)"; all files can be chosen besides.
    [[nodiscard]] virtual std::optional<std::string> AskOpenFile(const std::string& filter) = 0;
    /// How far a long task is, 0 to 100 percent; 100 ends the display. False: the user cancels, and the
    /// display has ended.
    [[nodiscard]] virtual bool ShowProgress(const std::string& task, int percent) = 0;
    /// Whether anybody listens to the program instead of looking at it, now.
    [[nodiscard]] virtual bool Listens() const { return false; }
    /// Says a sentence to who listens.
    virtual void Announce(const std::string&) {}
    virtual void SetCaption(const std::string& caption) = 0;
    /// Five names, the most recent first; a free slot is empty.
    virtual void ShowRecent(const std::vector<std::string>& names) = 0;
    /// A game is won and its table is about to be cleared: whoever wants to show it behind the end-of-game
    /// dialog, which follows, takes a picture now.
    virtual void KeepTable() {}
    /// Shows the end-of-game dialog modally.
    [[nodiscard]] virtual AfterGame ShowFinish(const FinishSummary& summary) = 0;
    /// Shows the selection dialog modally.
    virtual void ShowSelect() = 0;
    virtual void LayoutTable() = 0;
    /// Paints the table anew as the settings have it: its background and the colors of the suits.
    virtual void PaintBackground() = 0;
};

class HelpViewer {
public:
    virtual ~HelpViewer() = default;
    /// Opens the page of a context number in a window of its own: game ids 101 to 1120.
    virtual void ShowContext(int context) = 0;
    virtual void ShowContents() = 0;
    virtual void CloseAll() = 0;
};

/// The outside of one running program. The parts outlive the engine's objects.
struct WindowLayer {
    CardStage& Stage;
    SettingsStore& Settings;
    FileSystem& Files;
    ::Calendar& Calendar;
    SoundPlayer& Sounds;
    ::Forms& Forms;
    HelpViewer& Help;
};
