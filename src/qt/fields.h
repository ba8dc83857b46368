// SPDX-License-Identifier: MIT
//
// Small widgets that the layouts use.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>

class QToolButton;

namespace vatro {

/// A field of the entry, in letters that are read at arm's length, wide enough for so many of them.
class EntryField : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(int chars MEMBER chars_)

public:
    explicit EntryField(QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

private:
    int chars_ = 4;
};

/// A text as high as it is told, in the middle of the widget, and never cut: drawn smaller where it would not fit.
class FittedText : public QLabel {
    Q_OBJECT

public:
    explicit FittedText(QWidget* parent = nullptr);
    void SetTextFont(const QString& family, double points, bool bold);
    void SetColours(const QColor& text, const QColor& ground);
    QSize sizeHint() const override { return {1, 1}; }
    QSize minimumSizeHint() const override { return {1, 1}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont font_;
    double points_ = 12;
    QColor text_;
    QColor ground_;
};

/// One panel of a status bar: a text too long for it ends in dots, and the tooltip has all of it.
class StatusPanel : public QLabel {
    Q_OBJECT

public:
    explicit StatusPanel(QWidget* parent = nullptr);
    void SetPanelText(const QString& text, const QString& toolTip);
    /// All of the text, shown or not.
    const QString& PanelText() const { return whole_; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void Show();

    QString whole_;
    QString toolTip_;
};

/// Two arrows that count the number in a field up and down, together as high as the field.
class SpinArrows : public QWidget {
    Q_OBJECT

public:
    explicit SpinArrows(QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    QToolButton& Arrow(bool up) const { return up ? *up_ : *down_; }

Q_SIGNALS:
    void Stepped(bool up);

private:
    QToolButton* MakeArrow(bool up);

    QToolButton* up_;
    QToolButton* down_;
};

/// The inside of a window that may be smaller than what is in it, as on a small screen at twice the size: it scrolls, and the
/// widget with the focus is always in sight. Keys pass it by.
class ScrollRoom : public QScrollArea {
    Q_OBJECT

public:
    explicit ScrollRoom(QWidget& content);
    /// What the content lacks to be seen whole.
    QSize Missing() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void BringIntoSight(const QWidget& inside);
};

/// The font at a size that every measure is taken from, so that widths are in the ratio of the sizes.
inline constexpr int kMeasurePixels = 200;
QFont MeasureFont(const QString& family, bool bold);

}  // namespace vatro
