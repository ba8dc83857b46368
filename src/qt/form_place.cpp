// SPDX-License-Identifier: MIT
#include "form_place.h"

#include <QScreen>
#include <QStyle>
#include <QWidget>
#include <cmath>
#include <utility>

#include "deliver.h"

namespace vatro {

namespace {

/// Milliseconds after which a window that has been lent a place is moved only by the user.
constexpr int kSettling = 1000;

/// Lengths are at least one pixel.
int ToLength(int twips) {
    return qMax(1, ToPixels(twips));
}

}  // namespace

int ToPixels(int twips) {
    return static_cast<int>(std::lround(static_cast<double>(twips) / kTwipsPerPixel));
}

bool HasDialogSize(FormKind kind) {
    return kind == FormKind::Dialog || kind == FormKind::FixedDialog || kind == FormKind::FixedTool;
}

FormPlace::FormPlace(Form& form, bool desktop, QWidget& top)
    : form_(form), desktop_(desktop), top_(&top), settling_([this](bool byManager) { Rest(byManager); }) {}

void FormPlace::BeginArrival() {
    arriving_ = true;
    put_ = top_->pos();
    shownLarge_ = Large();
}

void FormPlace::Arrive() {
    arriving_ = false;
    if (KnowsUser()) settling_.Begin();
    Follow();
    // Until now the frame was not known.
    if (const auto loan = std::exchange(loan_, std::nullopt)) Lend(*loan);
    Tell();
}

void FormPlace::Leave() {
    arriving_ = false;
    loan_.reset();
    choice_.reset();
}

void FormPlace::Follow() {
    const Measures told = Told();
    // Do not move a window that is not on the screen yet: its frame would be misplaced.
    if (!form_.Placed() || told == place_ || arriving_) return;
    // If only the size has changed, keep the position that the user or the window manager has chosen.
    const bool moved = !place_ || told.left != place_->left || told.top != place_->top;
    place_ = told;
    if (placing_) return;
    placed_ = true;
    if (!top_->isMinimized()) {
        const auto held = Hold();
        const QPoint at(ToPixels(told.left), ToPixels(told.top));
        if (moved) {
            loan_.reset();
            top_->move(at);
            put_ = at;
        }
        QSize size(ToLength(told.width), ToLength(told.height));
        // A lent place may be smaller, and keeps its proportions.
        if (loan_) size = QSize(size.width() * loan_->height() / size.height(), loan_->height());
        if (top_->size() != size) SetSize(size);
        if (loan_) Lend(QRect(top_->pos(), size));
        if (!moved) PutBack();
    }
    if (!top_->isVisible()) return;
    // While the user changes the height of a window of letters, its width follows.
    if (KnowsUser() && !telling_) settling_.Begin();
    Tell();
}

void FormPlace::Return() {
    place_.reset();
    Follow();
}

void FormPlace::Tell() {
    // A form without a place of its own is not told where the front has put its window.
    if (form_.Placed()) Tell(Told());
}

void FormPlace::Tell(const Measures& finer) {
    if (placing_ || arriving_ || !top_->isVisible() || top_->isMinimized() || OnLoan() || settling_.Active()) return;
    // On a desktop a window keeps its place while it fills the screen.
    if (desktop_ && Large()) return;
    TellForm(ToTwips(Now(), finer));
}

void FormPlace::TellForm(const Measures& now) {
    // If the form changes its new place, that is shown but not reported back; otherwise form and window system might correct each other
    // for ever.
    if (telling_ || now == Told()) return;
    away_ = false;
    place_ = now;
    telling_ = true;
    const QPointer<FormPlace> self(this);
    Deliver([&] { form_.UserPlaced(now.left, now.top, now.width, now.height); });
    if (self != nullptr) telling_ = false;
}

FormPlace::Measures FormPlace::ToTwips(const QRect& now, const Measures& finer) const {
    const auto at = [](int pixels, int twips) { return ToPixels(twips) == pixels ? twips : pixels * kTwipsPerPixel; };
    const auto length = [](int pixels, int twips) { return ToLength(twips) == pixels ? twips : pixels * kTwipsPerPixel; };
    Measures told{at(now.x(), finer.left), at(now.y(), finer.top), length(now.width(), finer.width), length(now.height(), finer.height)};
    if (!choice_) return told;
    const auto& [seen, chosen] = *choice_;
    if (now.x() == seen.x()) told.left = chosen.left;
    if (now.y() == seen.y()) told.top = chosen.top;
    if (now.width() == seen.width()) told.width = chosen.width;
    if (now.height() == seen.height()) told.height = chosen.height;
    return told;
}

QRect FormPlace::Now() const {
    return {top_->pos(), top_->size()};
}

void FormPlace::Moved() {
    if (KnowsUser()) settling_.Moved();
    Tell();
}

void FormPlace::StateChanged() {
    if (!KnowsUser()) return;
    if (Large() && settling_.Doubtful() && choice_) TellForm(choice_->chosen);
    settling_.Begin();
}

void FormPlace::Rest(bool byManager) {
    if (arriving_ || !top_ || !top_->isVisible() || top_->isMinimized() || Large()) return;
    if (byManager && std::exchange(shownLarge_, false) && ShiftedByFrame()) {
        top_->move(put_);
        settling_.Begin();
        return;
    }
    if (!loan_) choice_ = {Now(), Told()};
}

bool FormPlace::ShiftedByFrame() const {
    const QPoint frame = top_->geometry().topLeft() - top_->pos();
    const QPoint shift = put_ - top_->pos();
    return !shift.isNull() && QRect(QPoint(), frame).contains(shift);
}

bool FormPlace::KnowsUser() const {
    return desktop_ && (form_.Kind() == FormKind::Main || form_.Kind() == FormKind::Tool);
}

bool FormPlace::Pushed() const {
    return KnowsUser() && form_.Kind() == FormKind::Tool && !loan_ && top_->isVisible() && top_->pos() != Own().topLeft();
}

void FormPlace::PutBack() {
    if (telling_ || !Pushed()) return;
    const QPoint at = Own().topLeft();
    if (top_->screen()->availableGeometry().contains(QRect(at, top_->frameGeometry().size()))) top_->move(at);
}

bool FormPlace::Large() const {
    return top_->isMaximized() || top_->isFullScreen();
}

FormPlace::Measures FormPlace::Told() const {
    return {form_.Left(), form_.Top(), form_.Width(), form_.Height()};
}

void FormPlace::PlaceFirst() {
    if (placed_) return;
    const QRect screen = top_->screen()->availableGeometry();
    // Use the size that the layout asks for; Qt does not apply it before the window is shown.
    if (HasDialogSize(form_.Kind())) {
        top_->ensurePolished();
        SetSize(top_->sizeHint().boundedTo(screen.size()));
    }
    const QWidget* owner = top_->parentWidget();
    const bool above = form_.Kind() != FormKind::FixedTool && owner != nullptr && owner->isVisible();
    const QPoint middle = (above ? owner->frameGeometry() : screen).center() - QRect(QPoint(), top_->size()).center();
    const QPoint last = screen.bottomRight() - QPoint(top_->width(), top_->height() + TitleHeight());
    top_->move(qMax(screen.left(), qMin(middle.x(), last.x())), qMax(screen.top(), qMin(middle.y(), last.y())));
    placed_ = true;
}

void FormPlace::FitToScreen() {
    if (Large()) return;
    const QRect room = top_->screen()->availableGeometry();
    const QSize left(room.right() - top_->x(), room.bottom() - top_->y() - TitleHeight());
    top_->resize(top_->size().boundedTo(left.expandedTo(top_->minimumSizeHint())));
}

void FormPlace::MoveByUser(int left, int top, int width, int height) {
    {
        const auto held = Hold();
        top_->move(ToPixels(left), ToPixels(top));
        SetSize({ToLength(width), ToLength(height)});
    }
    Tell({left, top, width, height});
}

void FormPlace::Lend(const QRect& place) {
    if (loan_ == place) return;
    const auto held = Hold();
    if (top_->pos() != place.topLeft()) top_->move(place.topLeft());
    if (top_->size() != place.size()) SetSize(place.size());
    if (KnowsUser() && form_.Kind() == FormKind::Main) {
        // What the window manager makes of it stands for the form's place, so that nothing is told before the user moves the window.
        away_ = true;
        if (!arriving_) settling_.Begin();
        return;
    }
    loan_ = place;
    choice_.reset();
    loanSince_.start();
}

void FormPlace::BeginResize() {
    if (KnowsUser()) settling_.Begin();
}

void FormPlace::EndLoan() {
    if (std::exchange(away_, false)) {
        // The size of a main window is its own affair.
        const auto held = Hold();
        put_ = Own().topLeft();
        top_->move(put_);
        settling_.Begin();
    }
    if (!loan_) return;
    loan_.reset();
    Return();
}

QRect FormPlace::Own() const {
    return {ToPixels(form_.Left()), ToPixels(form_.Top()), ToLength(form_.Width()), ToLength(form_.Height())};
}

void FormPlace::SetSize(const QSize& size) {
    if (form_.Kind() == FormKind::FixedTool)
        top_->setFixedSize(size);
    else
        top_->resize(size);
}

int FormPlace::TitleHeight() const {
    return top_->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, top_);
}

bool FormPlace::OnLoan() {
    if (!loan_) return false;
    const QRect now = Now();
    // Moves at first are those of the window manager.
    if (loanSince_.elapsed() < kSettling) loan_ = now;
    if (now == loan_) return true;
    loan_.reset();
    return false;
}

}  // namespace vatro
