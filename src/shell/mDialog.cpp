// What all dialogs do alike.
#include "shell/mDialog.h"

#include <algorithm>

#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QWidget>

namespace mDialog {

void FirstSize(QWidget* dialog, const QSize& wanted) {
    const QWidget* owner = dialog->parentWidget();
    const QScreen* screen = owner ? owner->screen() : dialog->screen();
    // The rest is for the frame and the title.
    const QSize room = screen->availableSize() * 9 / 10;
    dialog->resize(wanted.expandedTo(dialog->minimumSizeHint()).boundedTo(room));
}

QComboBox* MakeCombo(const char* name) {
    constexpr int ShownItems = 20;
    auto* combo = new QComboBox;
    combo->setObjectName(QLatin1String(name));
    combo->setMaxVisibleItems(ShownItems);
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

bool IsDark(const QPalette& palette) { return palette.color(QPalette::Base).lightness() < 128; }

QColor Readable(const QColor& color, const QPalette& palette) {
    if (!IsDark(palette)) return color;
    constexpr int Lightest = 255;
    const QColor hsl = color.toHsl();
    return QColor::fromHsl(hsl.hslHue(), hsl.hslSaturation(),
                           std::max(hsl.lightness(), Lightest - hsl.lightness()));
}

BusyPointer::BusyPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }

BusyPointer::~BusyPointer() { QGuiApplication::restoreOverrideCursor(); }

}  // namespace mDialog
