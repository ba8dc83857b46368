// SPDX-License-Identifier: MIT
//
// Small widgets used by the layouts.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainterPath>
#include <QPointer>
#include <QScrollArea>
#include <optional>

class QToolButton;

namespace vatro {

/// A field of the entry form with text readable at arm's length, wide enough for the given number of characters, and no wider.
class EntryField : public QLineEdit {
    Q_OBJECT
    Q_PROPERTY(int chars MEMBER chars_)
    /// Where the window is narrow, the field shrinks to this number of characters; 0 means not at all.
    Q_PROPERTY(int leastChars MEMBER leastChars_)
    /// Whether letters are written into the field, which are wider than digits.
    Q_PROPERTY(bool letters MEMBER letters_)

public:
    explicit EntryField(QWidget* parent = nullptr);
    QSize sizeHint() const override { return SizeFor(chars_); }
    QSize minimumSizeHint() const override { return SizeFor(leastChars_ > 0 ? leastChars_ : chars_); }

protected:
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    QSize SizeFor(int chars) const;

    int chars_ = 4;
    int leastChars_ = 0;
    bool letters_ = false;
};

/// A check box whose square is outlined clearly enough to be seen beside the large fields.
class TickBox : public QCheckBox {
    Q_OBJECT

public:
    using QCheckBox::QCheckBox;

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// A text of a given size, centred in the widget and never cut off: it is drawn smaller if it does not fit.
class FittedText : public QLabel {
    Q_OBJECT

public:
    explicit FittedText(QWidget* parent = nullptr);
    /// `points` is the largest size at which the text is drawn.
    void SetTextFont(const QString& family, double points, bool bold);
    /// Draws the text as large as the widget permits, whatever its size, but no larger than the other texts that fill their widgets in
    /// this row, so that they read as one line. Null ends that.
    void SetRow(const QWidget* row);
    /// An invalid colour means that of the palette; with an invalid `ground` no background is drawn.
    void SetColours(const QColor& text, const QColor& ground);
    QSize sizeHint() const override { return {1, 1}; }
    QSize minimumSizeHint() const override { return {1, 1}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// How large the text can be drawn here, as a factor of the font in which it is measured.
    double LargestScale() const;
    /// The texts that are drawn in one size with this one, itself included.
    QList<FittedText*> InRow() const;

    /// The text in the font in which it is measured.
    struct Letters {
        QString text;
        /// One for each letter that is not blank. To fill them one after the other takes less than half the time of a single path, which
        /// is gone through again for each part of its area.
        QList<QPainterPath> paths;
        QRectF ink;
        double advance = 0;
    };
    /// These are kept, because every text of a row is measured whenever one of them is painted.
    const Letters& Outline() const;
    /// The ink of the letters by which a row is measured.
    const QRectF& RowInk() const;

    QFont font_;
    mutable std::optional<Letters> letters_;
    mutable std::optional<QRectF> rowInk_;
    double points_ = 12;
    QPointer<const QWidget> row_;
    /// The largest scale when the text was last drawn.
    double drawnLargest_ = 0;
    QColor text_;
    QColor ground_;
};

/// Two arrow buttons that step the number in a field up and down, together as high as the field.
class SpinArrows : public QWidget {
    Q_OBJECT

public:
    explicit SpinArrows(QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    QToolButton& Arrow(bool up) const { return up ? *up_ : *down_; }

Q_SIGNALS:
    /// Emitted when the user presses one of the arrows.
    void Stepped(bool up);

private:
    QToolButton* MakeArrow(bool up);

    QToolButton* up_;
    QToolButton* down_;
};

/// A scrolling container for a window that may be smaller than its content, for example on a small screen at double scale. The widget
/// with the focus is always scrolled into view. Does not handle keys itself.
class ScrollRoom : public QScrollArea {
    Q_OBJECT

public:
    explicit ScrollRoom(QWidget& content);
    /// The size in which the container shows all of its content.
    QSize Needed() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void BringIntoSight(const QWidget& inside);
};

/// Pixel size at which all texts are measured, so that widths scale exactly with the font size.
inline constexpr int kMeasurePixels = 200;
/// The font in the size kMeasurePixels, without hinting.
QFont MeasureFont(const QString& family, bool bold);

}  // namespace vatro
