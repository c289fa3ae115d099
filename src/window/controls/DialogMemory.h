// What a dialog remembers from one time to the next: its size, and the widths and the sorting of its lists.
#pragma once

#include <map>
#include <string>

#include <QObject>
#include <QSize>

/// Only what the player has changed is written, when the dialog closes, all in one step; a dialog that is as
/// it comes leaves nothing in the settings.
class DialogMemory : public QObject {
    Q_OBJECT
public:
    /// Belongs to the dialog, which has its usual size and all its lists, and brings back what the settings
    /// hold: never a size below `least` or beyond `most`, and nothing that makes no sense.
    DialogMemory(QWidget* dialog, const QSize& least, const QSize& most);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Values = std::map<std::string, std::string>;  // by key

    void Restore(const QSize& least, const QSize& most);
    /// What there is to remember now; an empty value is one to forget.
    [[nodiscard]] Values Present() const;
    void Save();

    QWidget* dialog_;
    QSize usual_;
    Values remembered_;
};
