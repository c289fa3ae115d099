// Bringing back and writing what a dialog remembers.
#include "window/controls/DialogMemory.h"

#include <charconv>
#include <optional>
#include <utility>
#include <vector>

#include <QAbstractItemView>
#include <QEvent>
#include <QWidget>

#include "engine/state/cData.h"
#include "window/controls/ListCommands.h"
#include "window/controls/TextTable.h"

namespace {

constexpr const char* Section = "Dialogs";

std::string NameOf(const QObject* object) { return object->objectName().toStdString(); }

std::string SizeText(const QSize& size) {
    return std::to_string(size.width()) + 'x' + std::to_string(size.height());
}

/// "800x600"; nothing for any other text.
std::optional<QSize> ReadSize(const std::string& text) {
    constexpr int Largest = 32767;
    QSize size;
    const char* const end = text.data() + text.size();
    const auto width = std::from_chars(text.data(), end, size.rwidth());
    if (width.ec != std::errc{} || width.ptr == end || *width.ptr != 'x') return std::nullopt;
    const auto height = std::from_chars(width.ptr + 1, end, size.rheight());
    if (height.ec != std::errc{} || height.ptr != end) return std::nullopt;
    if (size.isEmpty() || size.width() > Largest || size.height() > Largest) return std::nullopt;
    return size;
}

/// Every list of a dialog with the beginning of its keys.
std::vector<std::pair<ListCommands*, std::string>> ListsOf(const QWidget* dialog) {
    std::vector<std::pair<ListCommands*, std::string>> lists;
    for (ListCommands* list : dialog->findChildren<ListCommands*>()) {
        if (const std::string name = NameOf(list->parent()); !name.empty())
            lists.emplace_back(list, NameOf(dialog) + '.' + name);
    }
    return lists;
}

}  // namespace

DialogMemory::DialogMemory(QWidget* dialog, const QSize& least, const QSize& most)
    : QObject(dialog), dialog_(dialog), usual_(dialog->size()) {
    if (!gData || dialog->objectName().isEmpty()) return;
    remembered_ = gData->Layer().Settings.GetSection(gData->ProdName(), Section);
    Restore(least, most);
    dialog->installEventFilter(this);
}

void DialogMemory::Restore(const QSize& least, const QSize& most) {
    if (const auto size = ReadSize(remembered_[NameOf(dialog_) + ".Size"]))
        dialog_->resize(size->expandedTo(least).boundedTo(most));
    for (const auto& [list, key] : ListsOf(dialog_)) {
        list->RestoreSorting(remembered_[key + ".Sorting"]);
        if (auto* table = qobject_cast<TextTable*>(list->parent()))
            table->RestoreWidths(remembered_[key + ".Widths"]);
    }
}

DialogMemory::Values DialogMemory::Present() const {
    // A dialog that fills the screen goes back to the size that it had before.
    const bool whole = dialog_->isMaximized() || dialog_->isFullScreen();
    const QSize size = whole ? dialog_->normalGeometry().size() : dialog_->size();
    Values values{{NameOf(dialog_) + ".Size", size == usual_ || size.isEmpty() ? "" : SizeText(size)}};
    for (const auto& [list, key] : ListsOf(dialog_)) {
        values[key + ".Sorting"] = list->Sorting();
        if (const auto* table = qobject_cast<TextTable*>(list->parent()))
            values[key + ".Widths"] = table->Widths();
    }
    return values;
}

void DialogMemory::Save() {
    if (!gData) return;
    std::vector<SettingValue> changed;
    for (const auto& [key, value] : Present()) {
        const std::string& before = remembered_[key];
        if (value != before) changed.push_back({Section, key, value});
        remembered_[key] = value;
    }
    if (!changed.empty()) gData->Layer().Settings.SaveSettings(gData->ProdName(), changed);
}

bool DialogMemory::eventFilter(QObject* watched, QEvent* event) {
    if (watched == dialog_ && event->type() == QEvent::Hide && !event->spontaneous()) Save();
    return QObject::eventFilter(watched, event);
}
