// The name dialog: asks for the name of a new player or another name for one.
#pragma once

#include <QDialog>

#include "engine/records/PlayerList.h"

class QLabel;
class QLineEdit;
class QPushButton;

class dlGInput : public QDialog {
    Q_OBJECT
public:
    /// `mText` is the player to rename; an empty name: a player is to be added.
    dlGInput(const QString& mCaption, ShownPlayer mText, QWidget* owner = nullptr);

    /// Shows the dialog modally, until a good name is entered or the user cancels.
    static void InputDlg(const QString& mCaption, const ShownPlayer& mText, QWidget* owner);

private:
    /// Says what is wrong with the name that is being typed.
    void ShowFault();
    void Enter();

    ShownPlayer old_;
    QLabel* Label1 = nullptr;
    QLineEdit* Text1 = nullptr;
    QLabel* lblFault = nullptr;
    QPushButton* OKButton = nullptr;
    QPushButton* CancelButton = nullptr;
};
