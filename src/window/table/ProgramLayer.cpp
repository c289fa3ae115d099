// The adapters between the engine and Qt.
#include "window/table/ProgramLayer.h"

#include <QAccessible>
#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QStandardPaths>

#include "engine/state/cData.h"
#include "window/dialogs/frmSelect.h"
#include "window/look/mPictures.h"
#include "window/records/frmFinish.h"
#include "window/table/TableView.h"
#include "window/table/frmMain.h"

namespace {

QString ProductName() { return gData ? QString::fromStdString(gData->ProdName()) : QString(); }

/// Where the user looks for files: not where the program happened to be started.
QString Documents() { return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation); }

/// What a message stands over: the dialog that is open, else the main window.
QWidget* Owner(frmMain* main) {
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog ? dialog : main;
}

/// A message box; answers the button pressed. Names and paths may hold what looks like a tag, so the text
/// is taken as it stands. Return presses the default button.
int Show(frmMain* main, QMessageBox::Icon icon, const std::string& text, QMessageBox::StandardButtons buttons,
         QMessageBox::StandardButton defaultButton) {
    QMessageBox box(icon, ProductName(), QString::fromStdString(text), buttons, Owner(main));
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(defaultButton);
    return box.exec();
}

void Tell(frmMain* main, QMessageBox::Icon icon, const std::string& text) {
    (void)Show(main, icon, text, QMessageBox::Ok, QMessageBox::Ok);
}

bool AskYesNo(frmMain* main, QMessageBox::Icon icon, const std::string& question,
              QMessageBox::StandardButton safe) {
    return Show(main, icon, question, QMessageBox::Yes | QMessageBox::No, safe) == QMessageBox::Yes;
}

}  // namespace

void ProgramForms::Inform(const std::string& text) { Tell(main_, QMessageBox::Information, text); }

bool ProgramForms::Ask(const std::string& question) {
    return AskYesNo(main_, QMessageBox::Question, question, QMessageBox::No);
}

bool ProgramForms::AskToKeep(const std::string& question) {
    return AskYesNo(main_, QMessageBox::Question, question, QMessageBox::Yes);
}

void ProgramForms::InformCritical(const std::string& text) { Tell(main_, QMessageBox::Critical, text); }

bool ProgramForms::AskCritical(const std::string& question) {
    return AskYesNo(main_, QMessageBox::Critical, question, QMessageBox::No);
}

std::optional<std::string> ProgramForms::AskSaveFile(const std::string& name, const std::string& filter) {
    // The caption stands before the bar, its pattern in brackets, which is the form Qt reads.
    const QString shown = QString::fromStdString(filter.substr(0, filter.find('|'))).trimmed();
    QFileDialog dialog(Owner(main_), ProductName(), Documents(), shown);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(shown.section(QStringLiteral("*."), 1).section(QLatin1Char(')'), 0, 0));
    dialog.selectFile(QString::fromStdString(name));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    return dialog.selectedFiles().constFirst().toStdString();
}

std::optional<std::string> ProgramForms::AskOpenFile(const std::string& filter) {
    const QString path =
        QFileDialog::getOpenFileName(Owner(main_), ProductName(), Documents(),
                                     QString::fromStdString(filter) + QStringLiteral(";;All Files (*)"));
    return path.isEmpty() ? std::nullopt : std::optional(path.toStdString());
}

bool ProgramForms::ShowProgress(const std::string& task, int percent) {
    constexpr int Whole = 100;
    busy_.reset();
    if (!progress_ && percent < Whole) {
        busy_.emplace();
        progress_ = new QProgressDialog(QString::fromStdString(task),
                                        QCoreApplication::translate("", "Cancel"), 0, Whole, Owner(main_));
        progress_->setObjectName(QStringLiteral("progress"));
        progress_->setWindowTitle(ProductName());
        progress_->setWindowModality(Qt::ApplicationModal);
        progress_->setAutoReset(false);
        progress_->setAutoClose(false);
    }
    if (!progress_) return true;
    progress_->setValue(percent);  // lets events run: a press of the button is seen here
    const bool canceled = progress_->wasCanceled();
    if (canceled || percent >= Whole) {
        busy_.reset();
        delete progress_;
    }
    return !canceled;
}

bool ProgramForms::Listens() const { return main_ && QAccessible::isActive(); }

void ProgramForms::Announce(const std::string& text) {
    if (main_) main_->Announce(text);
}

void ProgramForms::SetCaption(const std::string& caption) {
    if (main_) main_->setWindowTitle(QString::fromStdString(caption));
}

void ProgramForms::ShowRecent(const std::vector<std::string>& names) {
    if (main_) main_->ShowRecent(names);
}

void ProgramForms::KeepTable() {
    if (main_) won_ = std::make_unique<WonTable>(*main_->Table());
}

AfterGame ProgramForms::ShowFinish(const FinishSummary& summary) {
    frmFinish dialog(summary, main_);
    if (won_) {
        dialog.PlaceBeside(won_->OnScreen());
        won_->Celebrate();
    }
    dialog.exec();
    won_.reset();
    return dialog.Choice();
}

void ProgramForms::ShowSelect() {
    frmSelect dialog(main_);
    dialog.exec();
}

void ProgramForms::LayoutTable() {
    if (main_) main_->LayoutTable();
}

void ProgramForms::PaintBackground() {
    mPictures::UseFourColors(gData->Get(Setting::FourColors) == 1);
    if (main_) main_->Table()->PaintBackground();
}

void ProgramStage::CardMoved(int PicID) {
    if (table_) table_->CardMoved(PicID);
}

void ProgramStage::CardRaised(int PicID) {
    if (table_) table_->CardRaised(PicID);
}

void ProgramStage::CardShown(int PicID) {
    if (table_) table_->CardShown(PicID);
}

void ProgramStage::CardChanged(int PicID) {
    if (table_) table_->CardChanged(PicID);
}

void ProgramStage::MarkChanged(MarkKind kind, int index) {
    if (table_) table_->MarkChanged(kind, index);
}

void ProgramStage::Refresh() {
    if (table_) table_->Refresh();
}

void ProgramStage::ShowStep(double limit) {
    if (table_) table_->ShowStep(limit);
}

void ProgramStage::BeginSteps() {
    if (table_) table_->BeginSteps();
}

void ProgramStage::LetEventsRun() {
    if (table_) table_->LetEventsRun();
}

ProgramLayer::ProgramLayer() {
    settings_.SetReport([this](const std::string& message) { forms_.Inform(message); });
}

WindowLayer ProgramLayer::Layer() { return {stage_, settings_, files_, calendar_, sounds_, forms_, help_}; }

void ProgramLayer::SetMain(frmMain* window) {
    forms_.SetMain(window);
    stage_.SetTable(window->Table());
}
