// SPDX-License-Identifier: MIT
#include "spread.h"

#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "program.h"
#include "qt_front.h"
#include "window.h"

namespace vatro {

namespace {

/// A window needs at least this much room to be useful.
constexpr int kLeastHeight = 100;
constexpr int kLeastWidth = 250;

/// Whether the window shows one line of large letters; before it has any letters, it is as narrow as possible. The height of such a
/// window determines its width.
bool IsOneLine(const QRect& window) {
    return window.width() >= 2 * window.height() || 2 * window.width() <= window.height();
}

/// The width for a new height, with the same aspect ratio.
int WidthFor(const QRect& line, int height) {
    return line.width() * height / line.height();
}

/// Places the windows side by side, with equal shares of the width and equal heights.
void PlaceLines(const QRect& room, const std::vector<QRect*>& lines) {
    if (lines.empty()) return;
    const int width = room.width() / static_cast<int>(lines.size());
    int height = room.height();
    for (const QRect* line : lines) {
        height = std::min(height, line->height());
        if (WidthFor(*line, height) > width) height = line->height() * width / line->width();
    }
    QPoint at = room.topLeft();
    for (QRect* line : lines) {
        *line = QRect(at, QSize(WidthFor(*line, height), height));
        at.rx() += width;
    }
}

/// Places the windows one below the other, with equal shares of the height.
void PlaceOthers(const QRect& room, const std::vector<QRect*>& windows) {
    if (windows.empty()) return;
    const int height = room.height() / static_cast<int>(windows.size());
    QPoint at = room.topLeft();
    for (QRect* window : windows) {
        *window = QRect(at, window->size().boundedTo({room.width(), height}));
        at.ry() += height;
    }
}

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

    std::vector<QRect*> ofOneLine;
    std::vector<QRect*> ofMany;
    for (QRect& window : windows) (IsOneLine(window) ? ofOneLine : ofMany).push_back(&window);
    PlaceLines(lines, ofOneLine);
    PlaceOthers(others, ofMany);
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
    // Start above the caption of the field.
    const int entry = field != nullptr ? field->mapToGlobal(QPoint()).y() - 2 * field->height() : main->frameGeometry().bottom();
    const std::vector<QRect> places = BesideMain(main->screen()->availableGeometry(), main->frameGeometry(), entry, frames);
    for (std::size_t i = 0; i < beside.size(); ++i) {
        const QSize size = places[i].size() - (frames[i].size() - beside[i]->Top()->size());
        beside[i]->MoveByUser(places[i].left() * kTwipsPerPixel, places[i].top() * kTwipsPerPixel, size.width() * kTwipsPerPixel,
                              size.height() * kTwipsPerPixel);
    }
}

}  // namespace vatro
