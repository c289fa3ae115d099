// The rules window: the page of one game, apart from the contents.
#pragma once

#include <QWidget>

class HelpBrowser;

class frmRules : public QWidget {
    Q_OBJECT
public:
    frmRules();
    /// Shows the rules of the game with that id.
    void ShowGame(int gameID);

Q_SIGNALS:
    void ContentsWanted();

private:
    HelpBrowser* browser_ = nullptr;
};
