// The search for a name, round from the selected one.
#include "window/controls/TypeAhead.h"

namespace {

constexpr qint64 TypingPause = 1000;  // milliseconds

// The first name of that beginning after `from`, or from it on; past the end the search goes on at the top.
int NextOf(const QString& beginning, const QStringList& names, int from, bool orFromItself) {
    int first = -1;  // of all
    int next = -1;
    for (int i = 0; i < names.size(); ++i) {
        const QString& name = names[i];
        if (name.isEmpty() || !name.startsWith(beginning, Qt::CaseInsensitive)) continue;
        if (name.size() == beginning.size()) return i;
        if (first < 0) first = i;
        if (next < 0 && (orFromItself ? i >= from : i > from)) next = i;
    }
    return next >= 0 ? next : first;
}

}  // namespace

bool TypeAhead::IsTyping() const {
    return !typed_.isEmpty() && sinceKey_.isValid() && sinceKey_.elapsed() <= TypingPause;
}

int TypeAhead::Find(const QString& typed, const QStringList& names, int current) {
    if (!IsTyping()) typed_.clear();
    sinceKey_.start();
    // A blank that opens no word selects nothing.
    if (typed_.isEmpty() && typed.trimmed().isEmpty()) return -1;
    if (typed_.isEmpty()) from_ = current;
    typed_ += typed;
    // One letter goes on to the next name; a longer beginning may also mean the name that was selected
    // before the first letter left it.
    const int found = NextOf(typed_, names, from_, typed_.size() > 1);
    if (found >= 0 || typed_.count(typed_.front(), Qt::CaseInsensitive) < typed_.size()) return found;
    // The same letter again and again walks through the names that begin with it.
    return NextOf(typed_.left(1), names, current, false);
}
