// The contents window: the groups and their games, the general pages, and a search over all of them.
#pragma once

#include <QWidget>

class HelpBrowser;
class QLabel;
class QLineEdit;
class QSplitter;
class QTreeWidget;
class QTreeWidgetItem;

class frmContents : public QWidget {
    Q_OBJECT
public:
    frmContents();

private:
    void BuildControls();
    void FillTree();
    /// Shows only what holds the words in the search box.
    void Search();
    /// Selects the entry of a page that a link has led to.
    void Follow(const QUrl& address);

    QLineEdit* txtSearch_ = nullptr;
    QLabel* lblNothing_ = nullptr;  ///< says that a search found nothing
    QSplitter* parts_ = nullptr;
    QTreeWidget* tvwContents_ = nullptr;
    HelpBrowser* browser_ = nullptr;
};
