// SPDX-License-Identifier: MIT
//
// One panel of a status bar. A text that is too long for a line goes on in a second one; what does not fit there either is replaced by an
// ellipsis, and the tooltip shows all of it. A mark is shown as a sign and a colour before the text, so that neither carries the meaning
// alone; a duplicate fills the whole panel.
#pragma once

#include <QLabel>

#include "bars.h"

namespace vatro {

class StatusPanel : public QLabel {
    Q_OBJECT

public:
    explicit StatusPanel(QWidget* parent = nullptr);
    /// Shows the text, or the beginning of it if there is no room. It is no longer faded.
    void SetPanelText(const QString& text, const QString& toolTip, PanelMark mark = PanelMark::None);
    /// The whole text, even if it is shown shortened.
    const QString& PanelText() const { return whole_; }
    PanelMark Mark() const { return mark_; }
    /// Keeps the room that this text needs, so that it does not move what is above the panel when it is first shown.
    void KeepRoomFor(const QString& text, PanelMark mark);
    /// Keeps the text this far away from the panel before.
    void SetGap(int gap);
    /// Shows the text faintly and without colours until there is another one, because it is about something that is over.
    void SetFaded(bool faded);
    bool Faded() const { return faded_; }
    /// Number of lines in which the text is shown.
    int Lines() const { return static_cast<int>(lines_.size()); }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The panel has been given a text or a mark.
    void Told();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// Lays the text out in the width of the panel. `anew` forgets the height that earlier texts needed.
    void LayOut(bool anew);
    /// Whether one line has room for the longest text.
    bool LongestFits() const;
    QFont TextFont(PanelMark mark) const;
    int SignWidth(PanelMark mark) const;
    /// Where the sign and the text are.
    QRect Inside() const;
    /// Whether the panel shrinks with the window, and so does not ask for a width of its own.
    bool Elastic() const;

    PanelMark mark_ = PanelMark::None;
    bool faded_ = false;
    int gap_ = 0;
    QString longest_;
    PanelMark longestMark_ = PanelMark::None;
    QString whole_;
    QString toolTip_;
    QStringList lines_;
    /// The panel stays as high as the longest text in this width, so that the fields above it do not jump from call to call.
    int rows_ = 1;
};

}  // namespace vatro
