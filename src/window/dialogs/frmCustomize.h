// The dialog "Customize": the look, the speeds, the sounds, the range of the random numbers, and what can
// be cleared. Some controls act at once, the others wait for OK.
#pragma once

#include <array>

#include <QColor>
#include <QDialog>

#include "engine/commands/mCustomize.h"

class BackPreview;
class LookPreview;
class SuitsPreview;
class QCheckBox;
class QComboBox;
class QPushButton;
class QSlider;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;

class frmCustomize : public QDialog {
    Q_OBJECT
public:
    explicit frmCustomize(QWidget* owner = nullptr);

private:
    [[nodiscard]] QWidget* BuildGeneral();
    [[nodiscard]] QWidget* BuildBackground();
    [[nodiscard]] QWidget* BuildDecks();
    [[nodiscard]] QWidget* BuildAnimation();
    void ConnectGeneral();

    void SelectBackground();
    void SelectDeck();
    /// Which of the controls for colours the working background has a use for.
    void EnableColors(bool backgroundSelected);
    void PickColor();
    /// Shows the working values in both tabs.
    void Redraw();
    void Confirm();

    mCustomize::Choice choice_ = mCustomize::Stored();  ///< the working values
    QColor dialogColor_{Qt::black};                     ///< what the colour dialog was left with

    QTabWidget* SSTab1 = nullptr;
    QCheckBox* chkTime = nullptr;
    QCheckBox* chkScore = nullptr;
    QCheckBox* chkMoves = nullptr;
    QComboBox* imcRange = nullptr;
    QPushButton* cmdClearRecent = nullptr;
    QPushButton* cmdExportStat = nullptr;
    QPushButton* cmdClearStat = nullptr;
    QTreeWidget* tvBGround = nullptr;
    QTreeWidgetItem* customColorNode_ = nullptr;
    LookPreview* Picture1 = nullptr;
    QCheckBox* chkFade = nullptr;
    QPushButton* cmdCustom = nullptr;
    QTreeWidget* tvDeck = nullptr;
    LookPreview* picDeckBack = nullptr;
    BackPreview* PicDeck = nullptr;
    SuitsPreview* picSuits = nullptr;
    QCheckBox* chkFour = nullptr;
    std::array<QSlider*, mCustomize::Speeds.size()> sliders_{};  // Slider1 to Slider4
    QTreeWidget* lvSound = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
};
