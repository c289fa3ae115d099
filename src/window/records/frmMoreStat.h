// The dialog "More Statistics": streaks, bests, progress and the rhythm of playing, for any player, group of
// games and time; its lists leave the program as comma-separated values, and records come in.
#pragma once

#include <array>
#include <memory>

#include <QDialog>

#include "engine/records/mCareerTables.h"
#include "window/records/LoadedScores.h"

class CareerModel;
class ChartView;
class LogModel;
class QBoxLayout;
class QComboBox;
class QLabel;
class QPushButton;
class QTabWidget;

/// Shows the store that Game Statistics has loaded, where that is open under it.
class frmMoreStat : public QDialog {
    Q_OBJECT
public:
    explicit frmMoreStat(QWidget* owner = nullptr);

    /// Whether the store was read again.
    [[nodiscard]] bool HasRead() const { return hasRead_; }

private:
    enum Page { Summary, Progress, Games, Players, Times, Hours, Records, Pages };

    void BuildChoices();
    void BuildPages();
    void AddPage(Page page, const char* name, const QString& title, QComboBox* choice, const QString& label,
                 bool charts);
    [[nodiscard]] QBoxLayout* BuildButtons();
    /// Works out what the choices ask for; a page is filled when it is in sight.
    void Work();
    void ShowPage();
    void ShowCharts(Page page);
    [[nodiscard]] mCareerTables::Table TableOf(Page page) const;
    void Export();
    void Import();

    struct PageParts {
        CareerModel* Rows = nullptr;
        ChartView* Played = nullptr;
        ChartView* Share = nullptr;
        bool Filled = false;
    };

    LoadedScores scores_{LoadedScores::Reading::UnlessLoaded};
    bool hasRead_ = false;
    std::unique_ptr<Career> career_;
    CareerFilter filter_;
    Career::Result result_;
    std::array<PageParts, Pages> pages_;
    LogModel* records_ = nullptr;

    QComboBox* imcPlayer = nullptr;
    QComboBox* imcGroup = nullptr;
    QComboBox* imcPeriod = nullptr;
    QLabel* lblProgress = nullptr;
    QTabWidget* SSTab1 = nullptr;
    QComboBox* imcGames = nullptr;
    QComboBox* imcUnit = nullptr;
    QPushButton* cmdExport = nullptr;
    QPushButton* cmdImport = nullptr;
    QPushButton* cmdClose = nullptr;
};
