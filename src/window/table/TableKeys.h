// The keyboard on the table: passes keys on to the engine, shows the frame that they lead, and tells screen
// readers where it is.
#pragma once

#include <functional>
#include <optional>

#include <QObject>
#include <QPointF>
#include <QTimer>

#include "engine/commands/mKeys.h"

class QKeyEvent;
class TableFrame;
class TableView;

class TableKeys : public QObject {
    Q_OBJECT
public:
    /// Serves that table, which must outlive the object.
    explicit TableKeys(TableView* table);

    /// Keeps the frame where it belongs after other commands. To be called now and then.
    void Follow();
    /// An action that is asked for over the accessibility bus. It is done once the answer has gone out: a
    /// win would keep the one who asks waiting until the dialog closes. Nothing while a dialog is open.
    static void Ask(TableView* table, const std::function<mKeys::Answer()>& action);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool PressKey(const QKeyEvent& event);
    /// The mouse takes over.
    void GiveWay();
    void Show(mKeys::Answer answer);
    void ShowView();
    void TellPlace();

    TableView* table_;
    TableFrame* frame_;  // owned by the scene
    QTimer refused_;     // runs while the "no" is seen
    QPointF mouse_;      // where on the screen it rests while the frame is shown
    std::optional<mFrame::Stop> told_;
};
