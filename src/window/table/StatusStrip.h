// The three texts of the running game at the right end of the menu bar.
#pragma once

#include <array>

#include <QWidget>

#include "engine/commands/mMain.h"

class QLabel;
class QMenuBar;

class StatusStrip : public QWidget {
    Q_OBJECT
public:
    /// Puts itself into the bar's corner.
    explicit StatusStrip(QMenuBar* bar);

    void Show(const mMain::StatusTexts& texts);

private:
    QMenuBar* bar_;
    std::array<QLabel*, 3> labels_{};  // mScore, mTime, mMoves
};
