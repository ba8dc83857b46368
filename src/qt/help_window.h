// SPDX-License-Identifier: MIT
//
// The help viewer: shows a page of the handbook beside the table of contents, with buttons to go back, search and print.
#pragma once

#include <QList>
#include <QMainWindow>
#include <QStyle>
#include <utility>

class QAction;
class QLabel;
class QLineEdit;
class QTextBrowser;
class QTextDocument;
class QTreeWidget;

namespace vatro {

class HelpWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* owner = nullptr);
    /// Opens a page, such as "fdmanager.html#backup", and brings the window to the front.
    void ShowPage(const QString& link);
    /// The file name of the current page.
    QString Page() const;
    /// The text selected on the page, such as the last match.
    QString SelectedText() const;
    /// Searches for a text, ignoring case, from the last match on through the following pages, and wraps around at the end. Selects the
    /// match. If no page contains the text, returns false and shows a message in the window.
    bool FindNext(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    /// Chooses colours that can be read on the ground of the page for links and for the hint in the search field, and icons in the
    /// colours of the scheme.
    void ChooseInks();
    void AddContents();
    void AddTools();
    void FindAgain();
    void PrintPage();
    bool FindOn(const QString& page, const QString& text);

    QTreeWidget* contents_;
    QTextBrowser* browser_;
    /// The buttons of the toolbar that have icons.
    QList<std::pair<QAction*, QStyle::StandardPixmap>> tools_;
    QLineEdit* wanted_ = nullptr;
    QLabel* told_ = nullptr;
};

}  // namespace vatro
