// Sentences on their way to assistive programs.
#include "window/table/SpokenText.h"

#include <QAccessible>

SpokenText::SpokenText(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("spoken"));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 0, 0);
}

void SpokenText::Say(const QString& text) {
    setAccessibleName(text);
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(this, text);
#else
    // A notification that comes up is read.
    QAccessibleEvent event(this, QAccessible::ObjectShow);
#endif
    QAccessible::updateAccessibility(&event);
}
