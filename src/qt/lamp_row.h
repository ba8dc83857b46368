// SPDX-License-Identifier: MIT
//
// The lamps in the corner of the menu bar. Each has a sign, words and a colour, so that none of them carries the meaning alone. Where the
// menu bar is too narrow, words are left out, those of good lamps first; what is wrong keeps a short form, such as a time, longest.
#pragma once

#include <QAbstractButton>
#include <QEvent>
#include <QTimer>
#include <array>
#include <functional>

#include "lamp.h"

class QMenuBar;

namespace vatro {

/// The lamps from right to left.
enum class LampKind { Utc, Copy, LastContact, Morse };
inline constexpr std::size_t kLampKinds = 4;

/// One lamp. A click runs `clicked` of the row; the keyboard never stops here.
class LampButton : public QAbstractButton {
    Q_OBJECT

public:
    LampButton(LampKind kind, QWidget* parent);
    void Show(const Lamp& lamp);
    const Lamp& Shown() const { return lamp_; }
    /// Shows the lamp the other way round for a moment, because the same has happened again.
    void Blink();
    /// What is shown beside the sign.
    enum class Words { None, Short, All };
    void SetWords(Words words);
    Words ShownWords() const { return words_; }
    /// Whether words are left out.
    bool Brief() const { return words_ != Words::All; }
    /// The width with these words.
    int WidthOf(Words words) const;
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintSign(QPainter& painter, const QRectF& place, const QColor& ink) const;
    int SignSize() const;
    QString TextOf(Words words) const;

    LampKind kind_;
    Lamp lamp_;
    Words words_ = Words::All;
    QTimer blink_;
};

class LampRow : public QWidget {
    Q_OBJECT

public:
    /// Puts the row into the corner of the menu bar, whose child it becomes.
    explicit LampRow(QMenuBar& bar);
    void Show(LampKind kind, const Lamp& lamp);
    LampButton& Button(LampKind kind) { return *lamps_[static_cast<std::size_t>(kind)]; }

    /// Runs when a lamp is clicked.
    std::function<void(LampKind)> clicked;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FitIn();

    QMenuBar& bar_;
    std::array<LampButton*, kLampKinds> lamps_{};
};

}  // namespace vatro
