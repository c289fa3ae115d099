// The search field of the selection dialog, with its menu of facets.
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

/// Escape clears the field, and only in an empty one closes the dialog; Down leads to the list.
class GameSearch : public QWidget {
    Q_OBJECT
public:
    explicit GameSearch(QWidget* parent = nullptr);

    [[nodiscard]] QString Words() const;
    /// Tells below the field that nothing was found, or how many games were; nothing for an empty field.
    void ShowFound(int games);

Q_SIGNALS:
    void Changed();
    void ToList();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FillMenu();
    /// Adds a facet to the words, or takes it out where it stands there already.
    void Flip(const QString& facet);

    QLineEdit* txtSearch_;
    QToolButton* cmdFacets_;
    QLabel* lblFound_;
};
