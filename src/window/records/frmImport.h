// The dialog "Import Records": what a file would add to a player, before it does.
#pragma once

#include <QDialog>

#include "engine/records/ImportedRecords.h"
#include "engine/records/PlayerList.h"

class ListModel;
class QComboBox;
class QPushButton;

class frmImport : public QDialog {
    Q_OBJECT
public:
    /// `records` have been read and outlive the dialog. Offers that player, or where there is none so called
    /// the current one. Accepted where records were added.
    frmImport(const ImportedRecords& records, const std::string& player, QWidget* owner = nullptr);

private:
    void BuildControls(const std::string& player);
    void Preview();
    void Import();
    [[nodiscard]] std::string Into() const;
    /// Empty: all records of the file.
    [[nodiscard]] std::string Of() const;

    const ImportedRecords& records_;
    PlayerList players_;
    ListModel* preview_ = nullptr;

    QComboBox* imcPlayer = nullptr;
    QComboBox* imcOf = nullptr;
    QPushButton* cmdImport = nullptr;
    QPushButton* cmdCancel = nullptr;
};
