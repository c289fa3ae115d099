// Items with a note of their own at the right, such as how many favorites a game has.
#pragma once

#include <QString>
#include <QStyledItemDelegate>

class NotedDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    /// The role of an item's note, a text; none or an empty one shows nothing.
    static constexpr int NoteRole = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    /// What is read out of an item with a note.
    [[nodiscard]] static QString Spoken(const QString& text, const QString& note);
};
