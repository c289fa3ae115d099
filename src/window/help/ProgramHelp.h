// The help viewer of the program: the rules window and the contents window.
#pragma once

#include <memory>

#include <QObject>

#include "engine/outside/windowlayer.h"

class frmContents;
class frmRules;
class QWidget;

class ProgramHelp : public QObject, public HelpViewer {
    Q_OBJECT
public:
    ProgramHelp();
    ~ProgramHelp() override;

    /// 0 is no game: it opens the contents.
    void ShowContext(int context) override;
    void ShowContents() override;
    void CloseAll() override;

private:
    static void Present(QWidget& window);
    /// A modal dialog blocks all windows but those that stand over it: the help stands over it.
    void StandOver();

    std::unique_ptr<frmRules> rules_;
    std::unique_ptr<frmContents> contents_;
};
