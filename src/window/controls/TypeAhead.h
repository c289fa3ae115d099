// Finding a name by typing its beginning.
#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QStringList>

/// What has been typed so far in one list. Letters that follow each other within a second belong to one
/// name; a name typed whole is meant rather than a longer one that comes first.
class TypeAhead {
public:
    /// The index of the name that is meant after `typed` was added, with the name at `current` selected
    /// (-1 for none); -1 where no name begins so. Empty names are never meant.
    [[nodiscard]] int Find(const QString& typed, const QStringList& names, int current);
    /// Whether a name is being typed: a blank belongs to it then.
    [[nodiscard]] bool IsTyping() const;

private:
    QString typed_;
    int from_ = -1;  ///< selected when the first letter was typed
    QElapsedTimer sinceKey_;
};
