// SPDX-License-Identifier: MIT
//
// A button of the toolbar that is pressed or not. The pressed one tells band and mode, which must be read from two metres: its letters and
// its ground change places, in every colour scheme.
#pragma once

#include <QToolButton>
#include <QWidgetAction>

namespace vatro {

class PressButton : public QToolButton {
    Q_OBJECT

public:
    explicit PressButton(QWidget* parent);
    /// Has room for the bold caption of the pressed button, so that buttons do not change their width.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    QFont PressedFont() const;

    /// The size last given and the caption that it is for. The layout of a toolbar asks again and again.
    mutable QSize hint_;
    mutable QString hintedText_;
};

/// An action whose button in a toolbar is a PressButton.
class PressAction : public QWidgetAction {
    Q_OBJECT

public:
    using QWidgetAction::QWidgetAction;

protected:
    QWidget* createWidget(QWidget* parent) override;
};

}  // namespace vatro
