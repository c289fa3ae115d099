// A list or tree on a page of tabs, as assistive programs see it.
#pragma once

#include <QModelIndex>
#include <QRect>

/// Cells lie nowhere while their view is not shown: Qt looks only at their place in the view, and would call
/// those of a page that is turned away visible.
template <typename View>
class SeenView : public View {
public:
    using View::View;

    [[nodiscard]] QRect visualRect(const QModelIndex& index) const override {
        return this->isVisible() ? View::visualRect(index) : QRect();
    }
};
