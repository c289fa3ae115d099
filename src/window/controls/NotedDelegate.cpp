// Drawing items with their notes.
#include "window/controls/NotedDelegate.h"

#include <QApplication>
#include <QPainter>

#include "window/controls/mDialog.h"

namespace {

QString NoteOf(const QModelIndex& index) {
    const QString note = index.data(NotedDelegate::NoteRole).toString();
    return note.isEmpty() ? note : mDialog::Padded(note);
}

}  // namespace

void NotedDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    const QString note = NoteOf(index);
    if (note.isEmpty()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const int width = item.fontMetrics.horizontalAdvance(note);
    // The text makes room, the row behind it does not.
    const QString text = item.text;
    item.text = item.fontMetrics.elidedText(text, Qt::ElideRight,
                                            item.rect.width() - width - item.decorationSize.width());
    QStyle* style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
    const bool selected = item.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setFont(item.font);
    painter->setPen(item.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(item.rect, Qt::AlignRight | Qt::AlignVCenter, note);
    painter->restore();
}

QSize NotedDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    size.rwidth() += option.fontMetrics.horizontalAdvance(NoteOf(index));
    return size;
}

QString NotedDelegate::Spoken(const QString& text, const QString& note) {
    return note.isEmpty() ? text : tr("%1, %2").arg(text, note);
}
