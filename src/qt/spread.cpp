// SPDX-License-Identifier: MIT
#include "qt/spread.h"

#include <QApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "platform/program.h"
#include "qt/front.h"
#include "qt/window.h"

namespace vatro {

namespace {

/// With less room a window is of no use.
constexpr int kLeastHeight = 100;
constexpr int kLeastWidth = 250;

bool IsOneLine(const QRect& window) {
    return window.width() >= 2 * window.height();
}

/// Equal parts of the room for so many windows, one beside or below the other.
class Parts {
public:
    Parts(const QRect& room, std::ptrdiff_t windows, Qt::Orientation direction)
        : next_(room),
          step_(direction == Qt::Horizontal ? room.width() / static_cast<int>(std::max<std::ptrdiff_t>(windows, 1)) : 0,
                direction == Qt::Vertical ? room.height() / static_cast<int>(std::max<std::ptrdiff_t>(windows, 1)) : 0) {
        if (step_.x() > 0) next_.setWidth(step_.x());
        if (step_.y() > 0) next_.setHeight(step_.y());
    }
    /// The window in the next part.
    QRect Take(const QRect& window) {
        const QRect placed(next_.topLeft(), window.size().boundedTo(next_.size()));
        next_.translate(step_);
        return placed;
    }

private:
    QRect next_;
    QPoint step_;
};

}  // namespace

std::vector<QRect> BesideMain(const QRect& screen, const QRect& main, int entry, std::vector<QRect> windows) {
    QRect lines(QPoint(screen.left(), main.bottom() + 1), screen.bottomRight());
    QRect others(QPoint(main.right() + 1, screen.top()), screen.bottomRight());
    const QRect above(QPoint(main.left(), screen.top()), QPoint(main.right(), entry - 1));
    const bool roomBelow = lines.height() >= kLeastHeight;
    const bool roomBeside = others.width() >= kLeastWidth;
    if (roomBelow)
        others.setBottom(main.bottom());
    else
        lines = above;
    if (!roomBeside) others = above;
    if (!roomBelow && !roomBeside) {
        lines.setHeight(above.height() / 3);
        others.setTop(lines.bottom() + 1);
    }

    const auto ofOneLine = std::ranges::count_if(windows, IsOneLine);
    Parts side(lines, ofOneLine, Qt::Horizontal);
    Parts rows(others, std::ssize(windows) - ofOneLine, Qt::Vertical);
    for (QRect& window : windows) window = IsOneLine(window) ? side.Take(window) : rows.Take(window);
    return windows;
}

void SpreadWindows(const QtFront& front) {
    const QWidget* main = nullptr;
    std::vector<FormWindow*> beside;
    std::vector<QRect> frames;
    for (Form* form : LoadedForms()) {
        FormWindow* window = front.WindowOf(*form);
        if (window == nullptr || !window->Top()->isVisible()) continue;
        if (form->Kind() == FormKind::Main) main = window->Top();
        if (form->Kind() != FormKind::Tool) continue;
        beside.push_back(window);
        frames.push_back(window->Top()->frameGeometry());
    }
    if (main == nullptr) return;
    const QWidget* field = main->focusWidget();
    // With the caption above it.
    const int entry = field != nullptr ? field->mapToGlobal(QPoint()).y() - 2 * field->height() : main->frameGeometry().bottom();
    const std::vector<QRect> places = BesideMain(main->screen()->availableGeometry(), main->frameGeometry(), entry, frames);
    for (std::size_t i = 0; i < beside.size(); ++i) {
        const QSize size = places[i].size() - (frames[i].size() - beside[i]->Top()->size());
        beside[i]->MoveByUser(places[i].left() * kTwipsPerPixel, places[i].top() * kTwipsPerPixel, size.width() * kTwipsPerPixel,
                              size.height() * kTwipsPerPixel);
    }
}

}  // namespace vatro
