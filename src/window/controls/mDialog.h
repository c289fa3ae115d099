// What all dialogs do alike.
#pragma once

#include <string>
#include <vector>

#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QSize>
#include <QString>

class QBoxLayout;
class QComboBox;
class QWidget;

namespace mDialog {

/// Gives a dialog, when all is in it, its first size: what it asks for, as far as its screen has room, and
/// never less than its controls need. Where the screen has no room even for these, the dialog scrolls. A size
/// that the player has given it comes back, with the widths and the sorting of its lists.
void FirstSize(QWidget* dialog, const QSize& wanted);

/// A drop-down list with that object name. It needs a label: a screen reader takes its own name to be what
/// is selected.
[[nodiscard]] QComboBox* MakeCombo(const char* name);
/// Adds a text each; then the item of the selected text is current, or where there is none the first.
void FillCombo(QComboBox* combo, const QIcon& icon, const std::vector<std::string>& texts,
               const std::string& selected = {});

/// A line with a control behind its label, whose key leads to it; as wide as they need.
[[nodiscard]] QBoxLayout* Labelled(const QString& label, QWidget* control);

/// A list's text with air beside it, so that a number and the text of the next column, or the frame, stand
/// apart.
[[nodiscard]] QString Padded(const QString& text);
/// The height of a row of a list: its text or icon, with air between the rows.
[[nodiscard]] int RowHeight(const QWidget* list);

/// Whether lists and charts stand light on dark.
[[nodiscard]] inline bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < 128;
}
/// A text colour chosen for a light ground, or on a dark one its equivalent: the same hue, as light as
/// the colour was dark, and light enough to be read.
[[nodiscard]] QColor Readable(const QColor& color, const QPalette& palette);

/// While one lives, the pointer shows that the program is busy. For what may take longer than a glance.
class BusyPointer {
public:
    BusyPointer();
    ~BusyPointer();
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

}  // namespace mDialog
