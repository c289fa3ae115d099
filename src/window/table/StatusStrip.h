// The three texts of the running game: at the right end of the menu bar, or below the menus where the window
// is too narrow for both.
#pragma once

#include <array>

#include <QWidget>

#include "engine/commands/mMain.h"

class QBoxLayout;
class QLabel;
class QMenuBar;

class StatusStrip : public QWidget {
    Q_OBJECT
public:
    /// Puts itself into the bar's corner.
    explicit StatusStrip(QMenuBar* bar);

    void Show(const mMain::StatusTexts& texts);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Takes the place that the bar's width leaves.
    void Arrange();
    /// How wide the texts are beside each other.
    [[nodiscard]] int WidthInLine() const;

    QMenuBar* bar_;
    QBoxLayout* layout_;
    std::array<QLabel*, 3> labels_{};  // mScore, mTime, mMoves
    bool below_ = false;               // the menus, not beside them
};
