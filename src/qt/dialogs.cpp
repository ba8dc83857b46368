// SPDX-License-Identifier: MIT
#include "dialogs.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QStyle>
#include <memory>

#include "codepage.h"
#include "deliver.h"
#include "forms.h"
#include "print_module.h"
#include "printer.h"
#include "program.h"
#include "qt_front.h"
#include "qt_text.h"
#include "title_room.h"
#include "window.h"

namespace vatro {

using namespace literals;

namespace {

QMessageBox::Icon QtIcon(Icon icon) {
    switch (icon) {
        case Icon::None:
            return QMessageBox::NoIcon;
        case Icon::Information:
            return QMessageBox::Information;
        case Icon::Question:
            return QMessageBox::Question;
        case Icon::Exclamation:
            return QMessageBox::Warning;
        case Icon::Critical:
            return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

/// The directory where users look for their files. Not the current directory, which holds the program's tables and may be hidden.
QString OwnFiles() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo::exists(documents) ? documents : QDir::homePath();
}

/// Converts a filter such as "Logs|*.txt;*.log|All|*.*" to Qt's form.
QStringList NameFilters(const std::string& filter) {
    const QStringList parts = ToQt(filter).split(u'|', Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts[i + 1];
        patterns.replace(u';', u' ').replace(QStringLiteral("*.*"), QStringLiteral("*"));
        // Qt would take a part of the description in brackets for the patterns, so remove it.
        filters.append(parts[i].section(u'(', 0, 0).trimmed() + QStringLiteral(" (") + patterns + u')');
    }
    return filters;
}

const QtFront* FrontOnQt() {
    return dynamic_cast<const QtFront*>(&InstalledFront());
}

/// A message box that hands pending keys over before it closes.
class Box : public QMessageBox {
public:
    using QMessageBox::QMessageBox;
    void done(int result) override {
        if (const QtFront* front = FrontOnQt()) front->HandKeysOver(*this);
        QMessageBox::done(result);
    }
};

/// Names the row of buttons for screen readers, which announce it as a group.
void NameButtons(const QDialog& dialog) {
    if (auto* buttons = dialog.findChild<QDialogButtonBox*>()) buttons->setAccessibleName(QStringLiteral("Knapper"));
}

/// Removes the space that Qt reserves for an icon from a box without one.
void CloseUp(QMessageBox& box) {
    if (auto* text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
        text->setIndent(0);
        text->setContentsMargins(0, 0, 0, 0);
    }
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    QLayoutItem* first = grid != nullptr ? grid->itemAtPosition(0, 0) : nullptr;
    if (first == nullptr || first->spacerItem() == nullptr) return;
    first->spacerItem()->changeSize(0, 0);
    // Give the free space to the text column, where a wrapped text can use it.
    grid->setColumnStretch(1, 1);
}

/// Makes a dialogue that would be larger than its screen as large as that, with its title.
void FitToScreen(QDialog& dialog) {
    dialog.ensurePolished();
    constexpr int kFrame = 8;
    const int title = dialog.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &dialog);
    const QSize room = dialog.screen()->availableSize() - QSize(kFrame, title + kFrame);
    const QSize wanted = dialog.testAttribute(Qt::WA_Resized) ? dialog.size() : dialog.sizeHint();
    if (wanted.boundedTo(room) != wanted) dialog.resize(wanted.boundedTo(room));
}

/// Returns the focus to the active form. Qt would return it to the window that had it before, but the active form may have changed.
void GiveKeysBack() {
    if (Form* form = ActiveForm()) InstalledFront().Activated(*form);
}

}  // namespace

QWidget* DialogOwner() {
    const QtFront* front = FrontOnQt();
    // Only the main window or a modal one may own a dialogue; a side window may disappear while the dialogue is open.
    const Form* form = ModalForm();
    for (const Form* loaded : LoadedForms())
        if (form == nullptr && loaded->Kind() == FormKind::Main) form = loaded;
    const FormWindow* window = front != nullptr && form != nullptr ? front->WindowOf(*form) : nullptr;
    if (window != nullptr && window->Top()->isVisible()) return window->Top();
    // Before the main window is up, the page of a first start may be.
    return QApplication::activeModalWidget();
}

bool RunDialog(QDialog& dialog) {
    dialog.setWindowModality(Qt::ApplicationModal);
    FitToScreen(dialog);
    dialog.show();
    WaitLoop([open = QPointer<QDialog>(&dialog)] { return open == nullptr || !open->isVisible(); }).Run();
    dialog.hide();
    GiveKeysBack();
    return !ProgramEnding();
}

QMessageBox* MakeBox(const MessageBox& box, QWidget* owner) {
    const QtFront* front = FrontOnQt();
    const bool desktop = front != nullptr && front->desktopHabits;
    auto* made = new Box(owner);
    // The title of the rules is all lower case, unlike the name of the program.
    const QString programsTitle = desktop ? QStringLiteral("Vatro") : QStringLiteral("vatro");
    made->setWindowTitle(box.title.empty() ? programsTitle : ToQt(box.title));
    made->setTextFormat(Qt::PlainText);
    made->setText(ToQt(box.text));
    made->setIcon(QtIcon(box.icon));
    if (box.icon == Icon::None) CloseUp(*made);
    if (box.buttons == Buttons::Ok) {
        QPushButton* ok = made->addButton(QStringLiteral("&OK"), QMessageBox::AcceptRole);
        made->setDefaultButton(ok);
        made->setEscapeButton(ok);
    } else {
        QPushButton* yes = made->addButton(QStringLiteral("&Ja"), QMessageBox::YesRole);
        QPushButton* no = made->addButton(QStringLiteral("&Nej"), QMessageBox::NoRole);
        made->setDefaultButton(box.defaultNo ? no : yes);
        made->setEscapeButton(no);
    }
    NameButtons(*made);
    if (desktop) KeepTitleWhole(*made);
    QObject::connect(made, &QDialog::finished, made, [] { WaitLoop::Look(); });
    return made;
}

Answer AnswerOf(const QMessageBox& box) {
    const QAbstractButton* pressed = box.clickedButton();
    for (const QAbstractButton* button : box.buttons()) {
        if (box.buttonRole(const_cast<QAbstractButton*>(button)) == QMessageBox::AcceptRole) return Answer::Ok;
        if (button == pressed)
            return box.buttonRole(const_cast<QAbstractButton*>(button)) == QMessageBox::YesRole ? Answer::Yes : Answer::No;
    }
    return Answer::No;
}

Answer QtDialogs::Show(const MessageBox& box) {
    const auto remove = [](QMessageBox* gone) {
        if (const QtFront* front = FrontOnQt())
            front->Remove(*gone);
        else
            delete gone;
    };
    const std::unique_ptr<QMessageBox, decltype(remove)> made(MakeBox(box, DialogOwner()), remove);
    RunDialog(*made);
    LeaveIfEnding();
    return AnswerOf(*made);
}

std::string QtDialogs::SaveFile(const FileDialog& dialog) {
    return dialog.markerFile ? ChooseDirectory(dialog) : ChooseFile(dialog, true);
}

std::string QtDialogs::OpenFile(const FileDialog& dialog) {
    return ChooseFile(dialog, false);
}

/// Runs the dialogue and returns the first path chosen. Fails with Failure::Cancelled.
QString QtDialogs::Choose(QFileDialog& chooser) {
    chooser.setLabelText(QFileDialog::LookIn, QStringLiteral("Søg i:"));
    chooser.setLabelText(QFileDialog::Reject, QStringLiteral("Annuller"));
    NameButtons(chooser);
    QObject::connect(&chooser, &QDialog::finished, &chooser, [] { WaitLoop::Look(); });
    RunDialog(chooser);
    LeaveIfEnding();
    if (chooser.result() != QDialog::Accepted || chooser.selectedFiles().isEmpty()) throw RunTimeError(Failure::Cancelled);
    return chooser.selectedFiles().constFirst();
}

std::string QtDialogs::ChooseFile(const FileDialog& dialog, bool save) {
    QFileDialog chooser(DialogOwner(), ToQt(dialog.title));
    chooser.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    chooser.setFileMode(!save && dialog.fileMustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    chooser.setOption(QFileDialog::DontConfirmOverwrite, !dialog.overwritePrompt);
    chooser.setNameFilters(NameFilters(dialog.filter));
    chooser.setDefaultSuffix(ToQt(dialog.defaultExtension));
    const QFileInfo named(ToQt(dialog.fileName));
    chooser.setDirectory(named.isAbsolute() ? named.absolutePath() : folder_.isEmpty() ? OwnFiles() : folder_);
    if (!dialog.fileName.empty()) chooser.selectFile(named.fileName());
    chooser.setLabelText(QFileDialog::FileName, QStringLiteral("&Filnavn:"));
    chooser.setLabelText(QFileDialog::FileType, QStringLiteral("Filtype:"));
    chooser.setLabelText(QFileDialog::Accept, save ? QStringLiteral("&Gem") : QStringLiteral("&Åbn"));
    const QString chosen = Choose(chooser);
    folder_ = QFileInfo(chosen).absolutePath();
    return FromQt(QDir::toNativeSeparators(chosen));
}

std::string QtDialogs::ChooseDirectory(const FileDialog& dialog) {
    for (;;) {
        QFileDialog chooser(DialogOwner(), ToQt(dialog.title));
        chooser.setAcceptMode(QFileDialog::AcceptOpen);
        chooser.setFileMode(QFileDialog::Directory);
        chooser.setOption(QFileDialog::ShowDirsOnly);
        chooser.setDirectory(folder_.isEmpty() ? OwnFiles() : folder_);
        chooser.setLabelText(QFileDialog::FileName, QStringLiteral("&Bibliotek:"));
        chooser.setLabelText(QFileDialog::FileType, QStringLiteral("Filtype:"));
        chooser.setLabelText(QFileDialog::Accept, QStringLiteral("&Vælg"));
        const QString chosen = Choose(chooser);
        if (HasCodePageText(chosen)) {
            folder_ = chosen;
            return FromQt(QDir::toNativeSeparators(QDir(chosen).filePath(ToQt(dialog.fileName))));
        }
        // Converting this path would put "?" in place of some characters, so it would at best lead nowhere.
        folder_ = QFileInfo(chosen).absolutePath();
        const std::unique_ptr<QMessageBox> refused(MakeBox(MessageBox{}, DialogOwner()));
        refused->setIcon(QMessageBox::Warning);
        refused->setText(
            QStringLiteral("Vatro kan ikke bruge biblioteket\n\n%1\n\nNavnet har tegn, som Vatro ikke kender. Vælg et bibliotek, hvis "
                           "sti kun har danske og andre vesteuropæiske bogstaver, tal og almindelige tegn.")
                .arg(QDir::toNativeSeparators(chosen)));
        RunDialog(*refused);
        LeaveIfEnding();
    }
}

void QtDialogs::SetUpPrinter() {
    if (printer_ == nullptr) throw RunTimeError(Failure::Cancelled);
    if (printer_->Module() == nullptr) {
        MessageBox missing;
        missing.text =
            "Vatro kan ikke indlæse sin del til printere, vatro-print.\n\nUdskrifter kan gemmes som PDF-filer, indtil Vatro er installeret "
            "igen."_t;
        missing.icon = Icon::Exclamation;
        Show(missing);
        throw RunTimeError(Failure::Cancelled);
    }
    SystemPrinter* const printer = printer_->Printer();
    if (printer == nullptr) {
        MessageBox silent;
        silent.text = "Printserveren svarer ikke.\n\nUdskrifter kan gemmes som PDF-filer, indtil den svarer igen."_t;
        silent.icon = Icon::Exclamation;
        Show(silent);
        throw RunTimeError(Failure::Cancelled);
    }
    const std::unique_ptr<QDialog> chooser = printer->MakeDialog(DialogOwner(), false);
    QObject::connect(chooser.get(), &QDialog::finished, chooser.get(), [] { WaitLoop::Look(); });
    RunDialog(*chooser);
    LeaveIfEnding();
    if (chooser->result() != QDialog::Accepted) throw RunTimeError(Failure::Cancelled);
}

void QtDialogs::ShowFailure(const RunTimeError& failure) {
    MessageBox box;
    box.text = std::string("Kørselsfejl "_t) + std::to_string(failure.Number()) + ":\n\n" + std::string(Meaning(failure.Which()));
    box.icon = Icon::Critical;
    const std::unique_ptr<QMessageBox> made(MakeBox(box, DialogOwner()));
    RunDialog(*made);
}

}  // namespace vatro
