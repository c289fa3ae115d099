// The interfaces of the main window, its status strip, and of windows that are no dialogs.
#include "window/table/mWindowAccess.h"

#include <QAccessibleWidget>
#include <QDialog>

#include "window/table/SpokenText.h"
#include "window/table/StatusStrip.h"
#include "window/table/frmMain.h"

namespace {

/// A menu bar lists its entries only, so that the status texts in its corner would be heard nowhere: the
/// window has them among its own children.
class MainAccess : public QAccessibleWidget {
public:
    explicit MainAccess(frmMain* window) : QAccessibleWidget(window, QAccessible::Window) {}

    [[nodiscard]] int childCount() const override {
        return QAccessibleWidget::childCount() + (Status() ? 1 : 0);
    }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index == QAccessibleWidget::childCount() ? Status() : QAccessibleWidget::child(index);
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        // In front of the menu bar.
        QAccessibleInterface* status = Status();
        return status && status->rect().contains(x, y) ? status : QAccessibleWidget::childAt(x, y);
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return child && child == Status() ? QAccessibleWidget::childCount()
                                          : QAccessibleWidget::indexOfChild(child);
    }

private:
    [[nodiscard]] QAccessibleInterface* Status() const {
        return QAccessible::queryAccessibleInterface(widget()->findChild<StatusStrip*>());
    }
};

/// The strip as a child of the window that it stands in.
class StatusAccess : public QAccessibleWidget {
public:
    explicit StatusAccess(StatusStrip* strip) : QAccessibleWidget(strip, QAccessible::Grouping) {}

    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(widget()->window());
    }
};

}  // namespace

QAccessibleInterface* mWindowAccess::Make(const QString& className, QObject* object) {
    if (auto* window = qobject_cast<frmMain*>(object)) return new MainAccess(window);
    if (auto* strip = qobject_cast<StatusStrip*>(object)) return new StatusAccess(strip);
    if (auto* spoken = qobject_cast<SpokenText*>(object)) {
        return new QAccessibleWidget(spoken, QAccessible::Notification);
    }
    // The help and the splash, which Qt takes for parts of a window.
    if (!className.startsWith(QLatin1String("frm")) || qobject_cast<QDialog*>(object)) return nullptr;
    return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Window);
}
