// SPDX-License-Identifier: MIT
//
// Message boxes and file dialogues of the desktop, with Danish buttons.
#pragma once

#include <QPointer>
#include <QString>
#include <vector>

#include "platform.h"

class QDialog;
class QFileDialog;
class QMessageBox;
class QWidget;

namespace vatro {

class QtPrinter;

class QtDialogs : public Dialogs {
public:
    /// Without a printer its dialogue is always cancelled.
    explicit QtDialogs(QtPrinter* printer = nullptr) : printer_(printer) {}
    Answer Show(const MessageBox& box) override;
    std::string SaveFile(const FileDialog& dialog) override;
    std::string OpenFile(const FileDialog& dialog) override;
    void SetUpPrinter() override;
    void ShowFailure(const RunTimeError& failure) override;

private:
    QString Choose(QFileDialog& chooser);
    std::string ChooseFile(const FileDialog& dialog, bool save);
    /// The path of the marker file in the directory that the user chooses. A directory whose name is not in the code page is refused.
    std::string ChooseDirectory(const FileDialog& dialog);

    QtPrinter* printer_;
    /// Of the file chosen last, or the directory.
    QString folder_;
};

/// A box that is not open yet. The caller owns it.
QMessageBox* MakeBox(const MessageBox& box, QWidget* owner);
/// The answer of its buttons. Esc and the window's frame say No, or OK if there is nothing else.
Answer AnswerOf(const QMessageBox& box);
/// The window above which a dialogue opens.
QWidget* DialogOwner();
/// Opens the dialogue and waits until it is closed; false if the program ends meanwhile.
bool RunDialog(QDialog& dialog);

}  // namespace vatro
