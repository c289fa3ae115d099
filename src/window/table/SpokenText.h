// What the program says to those who listen: a child of the main window without a size, which assistive
// programs know as a notification.
#pragma once

#include <QWidget>

class SpokenText : public QWidget {
    Q_OBJECT
public:
    explicit SpokenText(QWidget* parent);

    void Say(const QString& text);
};
