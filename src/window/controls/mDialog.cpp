// What all dialogs do alike.
#include "window/controls/mDialog.h"

#include <algorithm>

#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

#include "window/controls/DialogMemory.h"

namespace mDialog {

namespace {

/// The least size in which a dialog shows all its controls, and all lines of its texts when it is that wide.
QSize Needed(const QWidget* dialog, int width) {
    QSize needed = dialog->minimumSizeHint();
    const QLayout* layout = dialog->layout();
    if (layout && layout->hasHeightForWidth()) {
        needed = needed.expandedTo({0, layout->totalHeightForWidth(std::max(width, needed.width()))});
    }
    return needed;
}

/// Gives a dialog scroll bars: its tabs if it has some, so that the buttons below them stay in sight, else
/// all of it.
void Scroll(QWidget* dialog) {
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    if (auto* tabs = dialog->findChild<QTabWidget*>()) {
        delete dialog->layout()->replaceWidget(tabs, area);
        area->setWidget(tabs);
    } else {
        auto* whole = new QWidget;
        whole->setLayout(dialog->layout());
        auto* around = new QVBoxLayout(dialog);
        around->setContentsMargins(0, 0, 0, 0);
        around->addWidget(area);
        area->setWidget(whole);
    }
}

}  // namespace

void FirstSize(QWidget* dialog, const QSize& wanted) {
    for (QPushButton* button : dialog->findChildren<QPushButton*>()) {
        // Some styles leave no air beside a long caption.
        constexpr int Air = 4;  // letters
        const QFontMetrics metrics = button->fontMetrics();
        button->setMinimumWidth(metrics.size(Qt::TextShowMnemonic, button->text()).width() +
                                Air * metrics.averageCharWidth());
    }
    const QWidget* owner = dialog->parentWidget();
    const QScreen* screen = owner ? owner->screen() : dialog->screen();
    // The rest is for the frame and the title.
    const QSize room = screen->availableSize() * 9 / 10;
    const QSize needed = Needed(dialog, std::min(wanted.width(), room.width()));
    // Large letters on a small screen.
    if (needed.boundedTo(room) != needed) Scroll(dialog);
    dialog->resize(wanted.expandedTo(needed).boundedTo(room));
    const QSize frame(8, 32);  // how much it takes is not known before the dialog is shown
    new DialogMemory(dialog, needed, screen->availableSize() - frame);
}

QComboBox* MakeCombo(const char* name) {
    constexpr int ShownItems = 20;
    auto* combo = new QComboBox;
    combo->setObjectName(QLatin1String(name));
    combo->setMaxVisibleItems(ShownItems);
    constexpr int FewestLetters = 6;  // where there is no room for the longest item
    combo->setMinimumContentsLength(FewestLetters);
    return combo;
}

void FillCombo(QComboBox* combo, const QIcon& icon, const std::vector<std::string>& texts,
               const std::string& selected) {
    for (const std::string& text : texts) {
        combo->addItem(icon, QString::fromStdString(text));
        if (text == selected) combo->setCurrentIndex(combo->count() - 1);
    }
}

QBoxLayout* Labelled(const QString& label, QWidget* control) {
    auto* shown = new QLabel(label);
    shown->setBuddy(control);
    auto* row = new QHBoxLayout;
    row->addWidget(shown);
    row->addWidget(control);
    row->addStretch();
    return row;
}

QString Padded(const QString& text) {
    return QChar(QChar::Nbsp) + text + QChar(QChar::Nbsp);  // usual blanks are cut off at the right
}

int RowHeight(const QWidget* list) {
    const int icon = list->style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, list);
    const int text = list->fontMetrics().height();
    return std::max(text, icon) + text / 4;
}

QColor Readable(const QColor& color, const QPalette& palette) {
    if (!IsDark(palette)) return color;
    constexpr int Lightest = 255;
    constexpr int LightEnough = 180;  // also for blue, which looks darker than it counts
    const QColor hsl = color.toHsl();
    return QColor::fromHsl(hsl.hslHue(), hsl.hslSaturation(),
                           std::max({hsl.lightness(), Lightest - hsl.lightness(), LightEnough}));
}

BusyPointer::BusyPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }

BusyPointer::~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }

}  // namespace mDialog
