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

#include "monkey/Diary.h"
#include "monkey/Monkey.h"

namespace {

constexpr const char* TurnsLeft = "monkeyTurns";

std::string NameOf(const QObject* object) {
    std::string name = object->metaObject()->className();
    if (!object->objectName().isEmpty()) name += ' ' + object->objectName().toStdString();
    return name;
}

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
            mDiary::Note("choose \"" + action->text().toStdString() + "\" of " + NameOf(menu));
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
        mDiary::Note("move over " + NameOf(popup));
        hands_.Move(popup, PointIn(popup));
    } else if (choice < 93) {
        mDiary::Note("press outside of " + NameOf(popup));
        hands_.Click(popup, QPoint(-20, -20));
    } else {
        mDiary::Note("Escape in " + NameOf(popup));
        hands_.Key(popup, Qt::Key_Escape);
    }
}

void Monkey::OnDialog(QWidget* dialog) {
    const QVariant left = dialog->property(TurnsLeft);
    const bool isMessage = qobject_cast<QMessageBox*>(dialog) != nullptr;
    const int turns = left.isValid() ? left.toInt() - 1 : (isMessage ? Pick(3) : 3 + Pick(30));
    dialog->setProperty(TurnsLeft, turns);
    if (!left.isValid()) {
        mDiary::Count(isMessage ? "messages" : "dialogs");
        mDiary::CountWindow(NameOf(dialog));
    }

    if (auto* files = qobject_cast<QFileDialog*>(dialog)) return OnFileDialog(files);
    if (turns < 0) return LeaveDialog(dialog, -turns);
    const int choice = Pick(100);
    const QList<QWidget*> controls = InReach<QWidget>(dialog);
    if (choice < 78 && !controls.isEmpty()) {
        OnControl(OneOf(controls));
    } else if (choice < 84) {
        const QPoint at = PointIn(dialog);
        mDiary::Note("click in " + NameOf(dialog));
        hands_.Click(dialog, at, Chance(20) ? Qt::RightButton : Qt::LeftButton);
    } else if (choice < 94) {
        PressKey(dialog);
    } else if (choice < 97) {
        const QSize size(80 + Pick(1400), 60 + Pick(1100));
        mDiary::Note("resize " + NameOf(dialog));
        dialog->resize(size);
    } else {
        mDiary::Note("Escape in " + NameOf(dialog));
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
        mDiary::Note("press " + NameOf(button) + " \"" + button->text().toStdString() + '"');
        hands_.Click(button, button->rect().center());
    } else if (tries < Patience) {
        mDiary::Note("Escape in " + NameOf(dialog));
        hands_.Key(dialog, Qt::Key_Escape);
    } else if (tries < Force) {
        mDiary::Note("close " + NameOf(dialog));
        dialog->close();
    } else if (tries < Stuck) {
        mDiary::Note("reject " + NameOf(dialog));
        if (auto* closing = qobject_cast<QDialog*>(dialog)) closing->reject();
    } else {
        mDiary::Fail(NameOf(dialog) + " cannot be closed");
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
        mDiary::Note("click " + NameOf(control));
        hands_.Click(control, PointIn(control));
        TypeText(control->window());
    } else if (auto* tabs = qobject_cast<QTabBar*>(control); tabs && tabs->count() > 0) {
        const int tab = Pick(tabs->count());
        mDiary::Note("tab " + std::to_string(tab) + " of " + NameOf(control));
        hands_.Click(tabs, tabs->tabRect(tab).center());
    } else if (qobject_cast<QComboBox*>(control) && Chance(40)) {
        mDiary::Note("turn the wheel over " + NameOf(control));
        hands_.Wheel(control, control->rect().center(), Pick(9) - 4, Qt::NoModifier);
    } else if (qobject_cast<QAbstractSlider*>(control) && Chance(40)) {
        mDiary::Note("drag " + NameOf(control));
        hands_.Press(control, PointIn(control));
        if (hands_.Holding()) hands_.Release();
    } else {
        const QPoint at = PointIn(control);
        mDiary::Note("click " + NameOf(control));
        if (Chance(10)) {
            hands_.DoubleClick(control, at);
        } else {
            hands_.Click(control, at, Chance(8) ? Qt::RightButton : Qt::LeftButton);
        }
    }
}

void Monkey::OnItemView(QAbstractItemView* view) {
    const QAbstractItemModel* model = view->model();
    if (!model || model->rowCount(view->rootIndex()) == 0 || Chance(15)) {
        mDiary::Note("click " + NameOf(view));
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
        mDiary::Note("double-click row " + std::to_string(index.row()) + " of " + NameOf(view));
        hands_.DoubleClick(view->viewport(), at);
    } else {
        mDiary::Note("click row " + std::to_string(index.row()) + " of " + NameOf(view));
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
    mDiary::Note("press " + QKeySequence(key | modifier).toString().toStdString() + " in " + NameOf(window));
    const QString text =
        key == Qt::Key_Space ? QStringLiteral(" ") : (key < 128 ? QString(QChar(key)) : QString());
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
    mDiary::Note("type " + text.left(30).toStdString());
    hands_.Type(window, text);
}
