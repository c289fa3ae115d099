// The about box.
#pragma once

#include <QDialog>

class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(QWidget* owner);
};
