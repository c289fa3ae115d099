// What the monkey does in menus, dialogs and other windows. It knows kinds of controls, not dialogs: a new
// one is tried without a word here.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTabBar>
#include <QWidget>

#include "tools/monkey/Diary.h"
#include "tools/monkey/Monkey.h"

namespace {

constexpr const char* TurnsLeft = "monkeyTurns";

template <typename Control>
QList<Control*> InReach(const QWidget* window) {
    QList<Control*> controls = window->findChildren<Control*>();
    controls.removeIf([&](const Control* control) {
        return control->window() != window || !control->isVisible() || !control->isEnabled() ||
               control->size().isEmpty();
    });
    return controls;
}

}  // namespace

void Monkey::OnPopup(QWidget* popup) {
    const int choice = Pick(100);
    auto* menu = qobject_cast<QMenu*>(popup);
    if (menu && choice < 60) {
        QList<QAction*> actions = menu->actions();
        actions.removeIf([](const QAction* action) { return !action->isVisible() || action->isSeparator(); });
        if (!actions.isEmpty()) {
            QAction* action = OneOf(actions);
            hands_.Click(menu, menu->actionGeometry(action).center());
            return;
        }
    }
    auto* view = popup->findChild<QAbstractItemView*>();
    if (view && choice < 50) {
        OnItemView(view);
    } else if (choice < 75) {
        PressKey(popup);
    } else if (choice < 85) {
        hands_.Move(popup, PointIn(popup));
    } else if (choice < 93) {
        hands_.Click(popup, QPoint(-20, -20));
    } else {
        hands_.Key(popup, Qt::Key_Escape);
    }
}

void Monkey::OnDialog(QWidget* dialog) {
    const QVariant left = dialog->property(TurnsLeft);
    const bool isMessage = qobject_cast<QMessageBox*>(dialog) != nullptr;
    const int turns = left.isValid() ? left.toInt() - 1 : (isMessage ? Pick(3) : 3 + Pick(30));
    dialog->setProperty(TurnsLeft, turns);
    if (!left.isValid()) mDiary::Count(mDiary::NameOf(dialog));

    if (auto* files = qobject_cast<QFileDialog*>(dialog)) return OnFileDialog(files);
    if (turns < 0) return LeaveDialog(dialog, -turns);
    const int choice = Pick(100);
    const QList<QWidget*> controls = InReach<QWidget>(dialog);
    if (choice < 78 && !controls.isEmpty()) {
        OnControl(OneOf(controls));
    } else if (choice < 84) {
        hands_.Click(dialog, PointIn(dialog), Chance(20) ? Qt::RightButton : Qt::LeftButton);
    } else if (choice < 94) {
        PressKey(dialog);
    } else if (choice < 97) {
        const QSize size(80 + Pick(1400), 60 + Pick(1100));
        mDiary::Note("resize " + mDiary::NameOf(dialog));
        dialog->resize(size);
    } else {
        hands_.Key(dialog, Qt::Key_Escape);
    }
}

// As a user would at first, then with more and more force.
void Monkey::LeaveDialog(QWidget* dialog, int tries) {
    constexpr int Patience = 12;
    constexpr int Force = 30;
    constexpr int Stuck = 300;
    const QList<QAbstractButton*> buttons = InReach<QAbstractButton>(dialog);
    if (tries < Patience && !buttons.isEmpty() && Chance(60)) {
        QAbstractButton* button = OneOf(buttons);
        hands_.Click(button, button->rect().center());
    } else if (tries < Patience) {
        hands_.Key(dialog, Qt::Key_Escape);
    } else if (tries < Force) {
        mDiary::Note("close " + mDiary::NameOf(dialog));
        dialog->close();
    } else if (tries < Stuck) {
        mDiary::Note("reject " + mDiary::NameOf(dialog));
        if (auto* closing = qobject_cast<QDialog*>(dialog)) closing->reject();
    } else {
        mDiary::Fail(mDiary::NameOf(dialog) + " cannot be closed");
    }
}

// It writes into the scratch folder only, so it gets a whole path or nothing.
void Monkey::OnFileDialog(QFileDialog* dialog) {
    auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (!name || Chance(40)) {
        mDiary::Note("cancel the file dialog");
        dialog->reject();
        return;
    }
    const QString file =
        Chance(10) ? QStringLiteral("no-such-folder/x.txt") : QStringLiteral("export%1.txt").arg(Pick(5));
    mDiary::Note("write to " + file.toStdString());
    name->setText(QDir::current().absoluteFilePath(file));
    hands_.Key(dialog, Qt::Key_Return);
}

void Monkey::OnControl(QWidget* control) {
    const bool isText = qobject_cast<QLineEdit*>(control) || qobject_cast<QAbstractSpinBox*>(control);
    if (auto* view = qobject_cast<QAbstractItemView*>(control)) {
        OnItemView(view);
    } else if (isText && Chance(80)) {
        hands_.Click(control, PointIn(control));
        TypeText(control->window());
    } else if (auto* tabs = qobject_cast<QTabBar*>(control); tabs && tabs->count() > 0) {
        hands_.Click(tabs, tabs->tabRect(Pick(tabs->count())).center());
    } else if (qobject_cast<QComboBox*>(control) && Chance(40)) {
        hands_.Wheel(control, control->rect().center(), Pick(9) - 4, Qt::NoModifier);
    } else if (qobject_cast<QAbstractSlider*>(control) && Chance(40)) {
        hands_.Press(control, PointIn(control));
        if (hands_.Holding()) hands_.Release();
    } else if (Chance(10)) {
        hands_.DoubleClick(control, PointIn(control));
    } else {
        hands_.Click(control, PointIn(control), Chance(8) ? Qt::RightButton : Qt::LeftButton);
    }
}

void Monkey::OnItemView(QAbstractItemView* view) {
    const QAbstractItemModel* model = view->model();
    if (!model || model->rowCount(view->rootIndex()) == 0 || Chance(15)) {
        hands_.Click(view->viewport(), PointIn(view->viewport()));
        return;
    }
    QModelIndex index = view->rootIndex();
    while (model->rowCount(index) > 0 && (!index.isValid() || Chance(90))) {
        index = model->index(Pick(model->rowCount(index)), 0, index);
    }
    view->scrollTo(index);
    const QPoint at = view->visualRect(index).center();
    if (Chance(35)) {
        hands_.DoubleClick(view->viewport(), at);
    } else {
        hands_.Click(view->viewport(), at);
    }
}

void Monkey::PressKey(QWidget* window) {
    constexpr Qt::Key keys[] = {Qt::Key_Tab,    Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Space,
                                Qt::Key_Up,     Qt::Key_Down,    Qt::Key_Left,   Qt::Key_Right,
                                Qt::Key_Home,   Qt::Key_End,     Qt::Key_PageUp, Qt::Key_PageDown,
                                Qt::Key_Delete, Qt::Key_F4,      Qt::Key_Plus,   Qt::Key_Minus,
                                Qt::Key_A,      Qt::Key_Z,       Qt::Key_Alt,    Qt::Key_Backspace};
    const Qt::Key key = keys[Pick(static_cast<int>(std::size(keys)))];
    constexpr Qt::KeyboardModifier modifiers[] = {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier,
                                                  Qt::ShiftModifier, Qt::ControlModifier};
    const Qt::KeyboardModifier modifier = modifiers[Pick(5)];
    const QString text = key == Qt::Key_Space
                             ? QStringLiteral(" ")
                             : (key < 128 ? QString(QChar(static_cast<char16_t>(key))) : QString());
    hands_.Key(window, key, modifier, modifier == Qt::ControlModifier ? QString() : text);
}

void Monkey::TypeText(QWidget* window) {
    QStringList texts = QStringLiteral(
                            "7|0|-12.5e300|999999999999999999999|Zoë|Ann \"quoted\", comma|../Player1|"
                            "игрок|プレイヤー|لاعب ١٢٣|<b>%1 &Bold")
                            .split(QLatin1Char('|'));
    texts << QString::number(Pick(100000)) << QString(300, QLatin1Char('x'))
          << QStringLiteral("Player%1").arg(Pick(25));
    const QString text = OneOf(texts);
    if (Chance(50)) hands_.Key(window, Qt::Key_A, Qt::ControlModifier);
    hands_.Type(window, text);
}
