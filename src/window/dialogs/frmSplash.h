// The splash window: a picture and the version, gone after three seconds, a key or a click.
#pragma once

#include <QDialog>
#include <QTimer>

class frmSplash : public QDialog {
    Q_OBJECT
public:
    frmSplash();

Q_SIGNALS:
    /// Raised once, when the splash shows its picture and the version.
    void Painted();
    /// Raised once, when the splash is over.
    void Ended();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void ShowVersion();
    void EndSplash();

    QTimer Timer1;
    bool painted_ = false;
    bool ended_ = false;
};
