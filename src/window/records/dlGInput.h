// The name dialog: asks for the name of a new player or another name for one.
#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

class dlGInput : public QDialog {
    Q_OBJECT
public:
    /// `mText` is the name of the player to rename; empty: a player is to be added.
    dlGInput(const QString& mCaption, const QString& mText, QWidget* owner = nullptr);

    /// Shows the dialog modally, until a good name is entered or the user cancels.
    static void InputDlg(const QString& mCaption, const QString& mText, QWidget* owner);

private:
    void Enter();

    QString oldName_;
    QLabel* Label1 = nullptr;
    QLineEdit* Text1 = nullptr;
    QPushButton* OKButton = nullptr;
    QPushButton* CancelButton = nullptr;
};
