// What the tests of dialogs share: the engine over an outside in memory, and finding and pressing controls.
#pragma once

#include <functional>
#include <stdexcept>

#include <QTest>
#include <QtWidgets>

#include "engine/commands/mLoad.h"
#include "engine/records/cScore.h"
#include "support/EngineTest.h"

class DialogTest : public testing::Test {
protected:
    void SetUp() override {
        mLoad::Main(layer_.Layer());
        mGen::InitApp();
    }
    void TearDown() override { mLoad::UnloadMain(); }

    template <typename Control>
    [[nodiscard]] static Control* Find(const QWidget& dialog, const char* name) {
        auto* control = dialog.findChild<Control*>(QLatin1String(name));
        if (!control) throw std::runtime_error(std::string("no control ") + name);
        return control;
    }
    static void Open(QDialog& dialog) {
        dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }
    static void Click(const QWidget& dialog, const char* name) {
        QTest::mouseClick(Find<QWidget>(dialog, name), Qt::LeftButton);
    }
    [[nodiscard]] static bool Enabled(const QWidget& dialog, const char* name) {
        return Find<QWidget>(dialog, name)->isEnabled();
    }
    /// Clicks a row of a list or tree; the index must be one of its model's.
    static void ClickRow(QAbstractItemView* view, const QModelIndex& index) {
        view->scrollTo(index);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, view->visualRect(index).center());
    }
    [[nodiscard]] static std::string Cell(const QAbstractItemView* view, int row, int column) {
        return view->model()->index(row, column).data().toString().toStdString();
    }
    [[nodiscard]] static std::vector<std::string> Rows(const QAbstractItemView* view, int column = 0) {
        std::vector<std::string> rows;
        for (int row = 0; row < view->model()->rowCount(); ++row) rows.push_back(Cell(view, row, column));
        return rows;
    }
    static void Choose(const QWidget& dialog, const char* combo, const char* text) {
        auto* choice = Find<QComboBox>(dialog, combo);
        ASSERT_GE(choice->findText(QString::fromUtf8(text)), 0) << text;
        choice->setCurrentIndex(choice->findText(QString::fromUtf8(text)));
    }
    /// A line of a player's score file.
    void Add(const std::string& player, const std::string& line) {
        layer_.Files.Contents[cScore::FileName(player)] += line + "\r\n";
    }
    [[nodiscard]] static std::string Selected(const QAbstractItemView* view) {
        const QModelIndexList rows = view->selectionModel()->selectedRows();
        return rows.isEmpty() ? "" : rows.constFirst().data().toString().toStdString();
    }
    /// Does something to the next dialog that opens modally, and closes it if it is still open then.
    static void OnModal(const std::function<void(QWidget&)>& act) {
        QTimer::singleShot(0, qApp, [act] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_NE(dialog, nullptr) << "no dialog came up";
            act(*dialog);
            if (dialog->isVisible()) dialog->close();
        });
    }

    MemoryLayer layer_;
};
