// SPDX-License-Identifier: MIT
//
// The help viewer: the pages of the handbook, its table of contents beside them, the way back, search and print.
#pragma once

#include <QMainWindow>

class QLabel;
class QLineEdit;
class QTextBrowser;
class QTextDocument;
class QTreeWidget;

namespace vatro {

class HelpWindow : public QMainWindow {
    Q_OBJECT

public:
    HelpWindow();
    /// Goes to a page, as "fdmanager.html#backup", and comes to the front.
    void ShowPage(const QString& link);
    /// The page shown, by its file.
    QString Page() const;
    QString SelectedText() const;
    /// Looks for a text from the place of the last find on, through the pages that follow, and round at the end; without regard
    /// to case. The text found is selected. False, which the window tells too, if no page has it.
    bool FindNext(const QString& text);

private:
    void AddContents();
    void AddTools();
    void FindAgain();
    void PrintPage();
    bool FindOn(const QString& page, const QString& text);

    QTreeWidget* contents_;
    QTextBrowser* browser_;
    QLineEdit* wanted_ = nullptr;
    QLabel* told_ = nullptr;
};

}  // namespace vatro
