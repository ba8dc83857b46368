// SPDX-License-Identifier: MIT
//
// The desktop's message boxes and file dialogues, with Danish buttons.
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
    /// Without a printer, the printer dialogue always counts as cancelled.
    explicit QtDialogs(QtPrinter* printer = nullptr) : printer_(printer) {}
    Answer Show(const MessageBox& box) override;
    std::string SaveFile(const FileDialog& dialog) override;
    std::string OpenFile(const FileDialog& dialog) override;
    void SetUpPrinter() override;
    void ShowFailure(const RunTimeError& failure) override;

private:
    QString Choose(QFileDialog& chooser);
    std::string ChooseFile(const FileDialog& dialog, bool save);
    /// Lets the user choose a directory, and returns the path of the marker file in it. Refuses a directory whose path has characters
    /// outside the code page.
    std::string ChooseDirectory(const FileDialog& dialog);

    QtPrinter* printer_;
    /// The directory last used.
    QString folder_;
};

/// Creates a message box without opening it. The caller owns it.
QMessageBox* MakeBox(const MessageBox& box, QWidget* owner);
/// The answer that the user gave. Esc or closing the window means No, or OK if there is no other button.
Answer AnswerOf(const QMessageBox& box);
/// The window that dialogues belong to, or null. Before the main window is there, it is the dialogue in front.
QWidget* DialogOwner();
/// Opens the dialogue and waits until it is closed. Returns false if the program ends in the meantime.
bool RunDialog(QDialog& dialog);

}  // namespace vatro
