// The program's windows for screen readers, where Qt's own description of them leaves something out.
#pragma once

#include <QString>

class QAccessibleInterface;
class QObject;

namespace mWindowAccess {

/// For QAccessible::installFactory: the main window, its status strip, and windows that are no dialogs.
QAccessibleInterface* Make(const QString& className, QObject* object);

}  // namespace mWindowAccess
