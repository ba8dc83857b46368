// SPDX-License-Identifier: MIT
//
// How the main window looks to its user: black on white and bold for bright sun, and the size of its text. Kept among the
// settings; no text, order or rule of the program depends on it.
#pragma once

#include <QObject>

class QAction;
class QMainWindow;
class QMenu;

namespace vatro {

class Appearance : public QObject {
    Q_OBJECT

public:
    /// Adds its entries to the menu, and looks as it did when the program was last used. The window must have all its widgets.
    Appearance(QMainWindow& window, QMenu& menu);

    /// Steps from the size of the layout, from kSmallest to kLargest.
    static constexpr int kSmallest = -3;
    static constexpr int kLargest = 10;
    int TextSize() const { return step_; }
    bool Sun() const;

private:
    QAction* AddEntry(QMenu& menu, const QString& caption, const QKeySequence& key, int step);
    void SetTextSize(int step);
    void Apply();
    void GrowToContent();
    void Store() const;

    QMainWindow& window_;
    QAction* sun_;
    int step_ = 0;
};

}  // namespace vatro
