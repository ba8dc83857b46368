// SPDX-License-Identifier: MIT
#include "places.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "by_kind.h"
#include "item_list.h"
#include "qt_front.h"
#include "window.h"

namespace vatro {

namespace {

/// Milliseconds after a change of the main window until it has its new size and frame.
constexpr int kMainRest = 200;

/// A window needs at least this much room to be useful.
constexpr int kLeastHeight = 100;
constexpr int kLeastWidth = 250;

/// The column of the log after the call.
constexpr int kBehindCall = 23;

/// Whether the window shows one line of large letters; before it has any letters, it is as narrow as possible. The height of such a
/// window determines its width.
bool IsOneLine(const QRect& window) {
    return window.width() >= 2 * window.height() || 2 * window.width() <= window.height();
}

/// The part of the main window that other windows may cover, which is the log; over a low log also what is above it.
QRect Upper(QRect log, const QRect& screen) {
    constexpr int kLeast = 250;
    if (log.height() < kLeast) log.setTop(std::max(screen.top(), log.bottom() + 1 - kLeast));
    return log;
}

/// The width for a new height, with the same aspect ratio.
int WidthFor(const QRect& line, int height) {
    return line.width() * height / line.height();
}

/// Places the windows in one row, or one below the other, with equal shares of the room and equal heights.
void PlaceLines(const QRect& room, const std::vector<QRect*>& lines, bool oneRow) {
    if (lines.empty()) return;
    const int count = static_cast<int>(lines.size());
    const int width = oneRow ? room.width() / count : room.width();
    int height = oneRow ? room.height() : room.height() / count;
    for (const QRect* line : lines) {
        height = std::min(height, line->height());
        if (WidthFor(*line, height) > width) height = line->height() * width / line->width();
    }
    QPoint at = room.topLeft();
    for (QRect* line : lines) {
        *line = QRect(at, QSize(WidthFor(*line, height), height));
        at += oneRow ? QPoint(width, 0) : QPoint(0, height);
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

int Right(const std::vector<QRect*>& windows) {
    int right = 0;
    for (const QRect* window : windows) right = std::max(right, window->right());
    return right;
}

/// The parts of the screen around a main window, and its log. The strips are as wide as the screen, the columns as high.
struct Rooms {
    QRect below;
    QRect above;
    QRect right;
    QRect left;
    QRect log;

    Rooms(const QRect& screen, const QRect& main, const QRect& itsLog)
        : below(QPoint(screen.left(), main.bottom() + 1), screen.bottomRight()),
          above(screen.topLeft(), QPoint(screen.right(), main.top() - 1)),
          right(QPoint(main.right() + 1, screen.top()), screen.bottomRight()),
          left(screen.topLeft(), QPoint(main.left() - 1, screen.bottom())),
          log(itsLog) {}
    /// The better one of the strips, or null if both are too low.
    const QRect* Strip() const { return below.height() >= kLeastHeight ? &below : above.height() >= kLeastHeight ? &above : nullptr; }
    const QRect* Column() const { return right.width() >= kLeastWidth ? &right : left.width() >= kLeastWidth ? &left : nullptr; }
};

/// Arranges windows with one line and others in the room for each kind, which may be the same.
void PlaceIn(const Rooms& rooms, const std::vector<QRect*>& ofOneLine, const std::vector<QRect*>& ofMany) {
    const QRect* strip = rooms.Strip();
    const QRect* column = rooms.Column();
    const bool both = !ofOneLine.empty() && !ofMany.empty();
    QRect lines = strip != nullptr ? *strip : column != nullptr ? *column : rooms.log;
    QRect others = column != nullptr ? *column : lines;
    if (strip != nullptr && column != nullptr) {
        if (strip == &rooms.below)
            others.setBottom(strip->top() - 1);
        else
            others.setTop(strip->bottom() + 1);
    } else if (both && strip != nullptr) {
        lines.setWidth(lines.width() * 2 / 3);
        others.setLeft(lines.right() + 1);
    } else if (both) {
        lines.setHeight(lines.height() / 3);
    }
    PlaceLines(lines, ofOneLine, strip != nullptr || column == nullptr);
    if (both && strip == nullptr) {
        // In a column the lines may be lower than their part of it.
        const int below = column != nullptr ? ofOneLine.back()->bottom() : lines.bottom();
        others.setTop(below + 1);
    }
    PlaceOthers(others, ofMany);
    if (strip != nullptr || column != nullptr) return;
    const int shift = rooms.log.right() - Right(ofOneLine);
    for (QRect* line : ofOneLine) line->translate(shift, 0);
    for (QRect* window : ofMany) window->moveRight(rooms.log.right());
}

/// The first place for a frame of this size in the room that covers none of `taken`: the highest, then the leftmost or rightmost.
std::optional<QRect> FreePlace(const QRect& room, const QSize& size, const std::vector<QRect>& taken, bool rightmost) {
    std::set<int> lefts{rightmost ? room.right() + 1 - size.width() : room.left()};
    std::set<int> tops{room.top()};
    for (const QRect& other : taken) {
        lefts.insert(rightmost ? other.left() - size.width() : other.right() + 1);
        tops.insert(other.bottom() + 1);
    }
    std::vector<int> inOrder(lefts.begin(), lefts.end());
    if (rightmost) std::reverse(inOrder.begin(), inOrder.end());
    for (const int top : tops)
        for (const int left : inOrder) {
            const QRect place(QPoint(left, top), size);
            const bool covers = std::any_of(taken.begin(), taken.end(), [&](const QRect& other) { return other.intersects(place); });
            if (room.contains(place) && !covers) return place;
        }
    return std::nullopt;
}

std::optional<QRect> FreePlace(const Rooms& rooms, const QSize& size, const std::vector<QRect>& taken) {
    for (const QRect& room : {rooms.below, rooms.right, rooms.above, rooms.left})
        if (const std::optional<QRect> place = FreePlace(room, size, taken, false)) return place;
    return FreePlace(rooms.log, size, taken, true);
}

/// Moves the windows that cover a taken place or each other to a free one, in their own size if there is room for it.
void KeepOff(const Rooms& rooms, const std::vector<QRect>& own, std::vector<QRect>& windows, std::vector<QRect> taken) {
    const auto covers = [&taken](const QRect& window) {
        return std::any_of(taken.begin(), taken.end(), [&](const QRect& other) { return other.intersects(window); });
    };
    std::vector<std::size_t> displaced;
    for (std::size_t i = 0; i < windows.size(); ++i) {
        if (covers(windows[i]))
            displaced.push_back(i);
        else
            taken.push_back(windows[i]);
    }
    for (const std::size_t i : displaced) {
        std::optional<QRect> place = FreePlace(rooms, own[i].size(), taken);
        if (!place) place = FreePlace(rooms, windows[i].size(), taken);
        windows[i] = place.value_or(windows[i]);
        taken.push_back(windows[i]);
    }
}

std::vector<QRect> Screens() {
    std::vector<QRect> screens;
    for (const QScreen* screen : QGuiApplication::screens()) screens.push_back(screen->availableGeometry());
    return screens;
}

/// Width and height of what the window system adds to windows. Before the main window is on the screen, only the title is estimated.
QSize FrameOf(const QWidget& main) {
    if (main.isVisible() && !main.isFullScreen()) return main.frameGeometry().size() - main.size();
    return {0, main.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &main)};
}

QRect GlobalPlace(const QWidget& widget) {
    return {widget.mapToGlobal(QPoint()), widget.size()};
}

int Area(const QRect& place) {
    return place.isEmpty() ? 0 : place.width() * place.height();
}

}  // namespace

std::vector<QRect> BesideMain(const QRect& screen, const QRect& main, const QRect& log, std::vector<QRect> windows,
                              std::vector<QRect> taken) {
    const std::vector<QRect> own = windows;
    std::vector<QRect*> ofOneLine;
    std::vector<QRect*> ofMany;
    for (QRect& window : windows) (IsOneLine(window) ? ofOneLine : ofMany).push_back(&window);
    const Rooms rooms(screen, main, log);
    PlaceIn(rooms, ofOneLine, ofMany);
    KeepOff(rooms, own, windows, std::move(taken));
    return windows;
}

bool OnScreens(const QRect& frame, int title, const std::vector<QRect>& screens) {
    const QRect bar(frame.topLeft(), QSize(frame.width(), qMax(1, title)));
    return std::any_of(screens.begin(), screens.end(),
                       [&](const QRect& screen) { return 2 * Area(screen & frame) >= Area(frame) && 2 * Area(screen & bar) >= Area(bar); });
}

Places::Places(QtFront& front) : front_(front) {
    soon_.setSingleShot(true);
    soon_.setInterval(kMainRest);
    connect(&soon_, &QTimer::timeout, this, &Places::Settle);
    front.beforeShow = [this](FormWindow& window) { Show(window); };
    connect(qApp, &QGuiApplication::screenAdded, this, [this] { soon_.start(); });
    connect(qApp, &QGuiApplication::screenRemoved, this, [this] { soon_.start(); });
}

void Places::Show(FormWindow& window) {
    QWidget& top = *window.Top();
    if (window.Its().Kind() == FormKind::Main) {
        if (main_ != &top) top.installEventFilter(this);
        main_ = &top;
        fresh_ = true;
        const QSize frame = FrameOf(top);
        const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
        if (!OnScreens(QRect(top.pos(), top.size() + frame), frame.height(), Screens()))
            window.Lend(QRect(room.topLeft(), top.size().boundedTo(room.size() - frame)));
    } else if (window.Its().Kind() == FormKind::Tool && main_ != nullptr && Unwanted(window)) {
        arranged_.clear();
        Arrange(Displaced(&window));
    }
    soon_.start();
}

std::vector<FormWindow*> Places::Displaced(const FormWindow* coming) const {
    std::vector<FormWindow*> displaced;
    for (FormWindow* window : front_.Windows()) {
        const bool shown = window == coming || window->Top()->isVisible();
        const bool floats = window->Its().Kind() == FormKind::Tool && !window->Docked() && shown;
        if (floats && Unwanted(*window)) displaced.push_back(window);
    }
    return displaced;
}

bool Places::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == (watched == main_ ? QEvent::WindowStateChange : QEvent::Resize)) soon_.start();
    if (event->type() == QEvent::WindowStateChange) arranged_.clear();
    return false;
}

void Places::Settle() {
    if (main_ == nullptr || !main_->isVisible() || main_->isMinimized()) return;
    const std::vector<FormWindow*> displaced = Displaced();
    for (FormWindow* window : front_.Windows())
        if (std::find(displaced.begin(), displaced.end(), window) == displaced.end() && window->Its().Kind() == FormKind::Tool)
            window->EndLoan();
    const auto frame = [](const FormWindow* window) { return window->Top()->frameGeometry(); };
    const bool badly = std::any_of(displaced.begin(), displaced.end(), [&](const FormWindow* window) {
        return !window->Lent() || InTheWay(QRect(window->Top()->pos(), window->Top()->size())) ||
               std::any_of(displaced.begin(), displaced.end(),
                           [&](const FormWindow* other) { return other != window && frame(other).intersects(frame(window)); });
    });
    // When the main window was shown, its frame was not known.
    if (std::exchange(fresh_, false)) arranged_.clear();
    if (badly || arranged_.empty()) Arrange(displaced);
}

bool Places::Unwanted(const FormWindow& window) const {
    return window.Its().atUsualPlace || InTheWay(window.OwnPlace());
}

bool Places::InTheWay(const QRect& window) const {
    const QSize frame = FrameOf(*main_);
    const QRect place(window.topLeft(), window.size() + frame);
    return place.intersects(EntryFields()) || !OnScreens(place, frame.height(), Screens());
}

void Places::Arrange(const std::vector<FormWindow*>& windows) {
    if (windows.empty()) return;
    const QSize frame = FrameOf(*main_);
    std::vector<QRect> frames;
    frames.reserve(windows.size());
    for (const FormWindow* window : windows) frames.emplace_back(window->OwnPlace().topLeft(), window->OwnPlace().size() + frame);
    std::vector<QRect> taken;
    for (const FormWindow* window : front_.Windows()) {
        const bool arranged = std::find(windows.begin(), windows.end(), window) != windows.end();
        if (window->Its().Kind() == FormKind::Tool && !arranged && !window->Docked() && window->Top()->isVisible())
            taken.push_back(window->Top()->frameGeometry());
    }
    const QRect screen = main_->screen()->availableGeometry();
    const std::vector<QRect> places = BesideMain(screen, main_->frameGeometry(), Upper(Log(), screen), frames, taken);
    // Do not repeat what a window manager or a window itself does not accept.
    if (windows == arranged_ && places == arrangement_) return;
    arranged_ = windows;
    arrangement_ = places;
    for (std::size_t i = 0; i < windows.size(); ++i) {
        windows[i]->Top()->installEventFilter(this);
        QSize size = (places[i].size() - frame).expandedTo({1, 1});
        // The letters follow the height without the frame.
        const QRect own = windows[i]->OwnPlace();
        if (IsOneLine(frames[i])) size.setWidth(qBound(1, WidthFor(own, size.height()), size.width()));
        windows[i]->Lend(QRect(places[i].topLeft(), size));
    }
}

QRect Places::EntryFields() const {
    const FormWindow* window = front_.MainWindow();
    QRect fields;
    if (window == nullptr || !main_->isVisible()) return fields;
    for (const Control* control : window->Its().TabOrder())
        if (const QWidget* widget = window->WidgetOf(*control); widget != nullptr && As<ListBox>(control) == nullptr)
            fields |= GlobalPlace(*widget);
    return fields;
}

QRect Places::Log() const {
    const FormWindow* window = front_.MainWindow();
    for (const Control* control : window->Its().Controls())
        if (const auto* list = As<ListBox>(control)) {
            const auto* widget = qobject_cast<const ItemList*>(window->WidgetOf(*list));
            if (widget == nullptr) break;
            const QRect log = GlobalPlace(*widget);
            const int calls = widget->viewport()->x() + widget->ColumnLeft(kBehindCall);
            // The main window may be partly outside the screen.
            const QRect seen = main_->screen()->availableGeometry() & log.adjusted(calls, 0, 0, 0);
            return seen.width() >= kLeastWidth && seen.height() >= kLeastHeight ? seen : log;
        }
    return main_->frameGeometry();
}

}  // namespace vatro
