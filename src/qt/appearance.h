// SPDX-License-Identifier: MIT
//
// The user's display options: a colour scheme, bold black on white for bright sunlight or dim red on black for the night, and the text size
// of all windows. They are stored with the settings; nothing else in the program depends on them.
#pragma once

#include <QObject>
#include <QTimer>
#include <string_view>

class QAction;
class QMainWindow;
class QMenu;
class QWidget;

namespace vatro {

class Appearance : public QObject {
    Q_OBJECT

public:
    /// Adds the entries to the menu and applies the stored options. The window must already contain all its widgets.
    Appearance(QMainWindow& window, QMenu& menu);

    /// Text size in steps from the size of the layout, from kSmallest to kLargest.
    static constexpr int kSmallest = -3;
    static constexpr int kLargest = 10;
    int TextSize() const { return step_; }
    bool Sun() const;
    bool Night() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAction* AddScheme(QMenu& menu, const QString& caption, std::string_view key);
    QAction* AddEntry(QMenu& menu, const QString& caption, const QKeySequence& key, int step);
    void SetTextSize(int step);
    void Apply();
    /// Gives all widgets of a window their fonts.
    void Dress(QWidget& window) const;
    void GrowToContent();
    void Store() const;

    QMainWindow& window_;
    QAction* sun_;
    QAction* night_;
    int step_ = 0;
    QTimer soon_;
};

}  // namespace vatro
