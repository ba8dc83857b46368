// SPDX-License-Identifier: MIT
#include "window_driver.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOption>
#include <QTest>
#include <QToolBar>
#include <QToolButton>
#include <QWindow>

#include "bar_widgets.h"
#include "by_kind.h"
#include "codepage.h"
#include "deliver.h"
#include "dialogs.h"
#include "fields.h"
#include "item_list.h"
#include "program.h"
#include "qt_text.h"
#include "window.h"
#include "window_driver_input.h"

namespace vatro {

namespace {

/// Milliseconds to wait for the window system to move the focus to another window.
constexpr int kPatience = 3000;
/// Milliseconds between two clicks that must not count as a double click.
constexpr int kShortly = 25;
constexpr int kTries = 10;

/// The position after the last character of a field.
QPoint BehindText(const QLineEdit& field) {
    return {field.width() - 3, field.height() / 2};
}

QMainWindow& MainOf(QWidget& window) {
    auto* main = qobject_cast<QMainWindow*>(&window);
    if (main == nullptr) throw CannotDeliver("the window has no menu");
    return *main;
}

QMessageBox::ButtonRole Role(Answer answer) {
    return answer == Answer::Ok ? QMessageBox::AcceptRole : answer == Answer::Yes ? QMessageBox::YesRole : QMessageBox::NoRole;
}

}  // namespace

WindowDriver::WindowDriver() {
    front_.waitModal = [this](const std::function<bool()>& over) {
        LetGo();
        Settle();
        playUntil(over);
    };
}

WindowDriver::~WindowDriver() {
    while (!boxes_.empty()) DropBox();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QWidget& WindowDriver::WindowOf(const Form& form) const {
    const FormWindow* window = front_.WindowOf(form);
    if (window == nullptr || !window->Top()->isVisible()) throw CannotDeliver(form.Name() + " has no window on the screen");
    return *window->Top();
}

QWidget& WindowDriver::WidgetOf(const Control& control) const {
    QWidget* widget = front_.WidgetOf(control);
    if (widget == nullptr) throw CannotDeliver(control.FullName() + " has no widget");
    if (!widget->isVisible() || !widget->isEnabled()) throw CannotDeliver(control.FullName() + " is not shown or disabled on the screen");
    return *widget;
}

QWindow& WindowDriver::KeyWindow() const {
    const Form* form = ActiveForm();
    if (form == nullptr) throw CannotDeliver("no form is active");
    QWidget& window = WindowOf(*form);
    if (QApplication::activePopupWidget() == nullptr && QApplication::activeWindow() != &window)
        throw CannotDeliver(form->Name() + " is not the active window");
    return *window.windowHandle();
}

// --- Keys

void WindowDriver::Press(const KeyStroke& key) {
    Tap(KeyWindow(), key);
}

void WindowDriver::Paste(std::string_view text) {
    QApplication::clipboard()->setText(ToQt(text));
    Tap(KeyWindow(), Qt::Key_V, {}, Qt::ControlModifier);
}

// --- Clicks

void WindowDriver::Focus(Control& control) {
    QWidget& widget = WidgetOf(control);
    if (auto* field = qobject_cast<QLineEdit*>(&widget)) {
        ClickAt(*field, BehindText(*field));
    } else if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
        ClickAt(*combo->lineEdit(), BehindText(*combo->lineEdit()));
    } else if (auto* text = qobject_cast<QPlainTextEdit*>(&widget)) {
        text->verticalScrollBar()->setValue(text->verticalScrollBar()->maximum());
        ClickAt(*text->viewport(), text->viewport()->rect().bottomRight() - QPoint(3, 3));
    } else if (qobject_cast<ItemList*>(&widget) != nullptr) {
        // Click the frame of the list.
        ClickAt(widget, {0, 0});
    } else if (auto* bar = qobject_cast<QScrollBar*>(&widget)) {
        ClickAt(*bar, SlideOf(*bar));
    } else {
        // Release the button beside the widget, so that the click has no effect.
        QWindow* window = widget.window()->windowHandle();
        QTest::mousePress(window, Qt::LeftButton, {}, widget.mapTo(widget.window(), widget.rect().center()));
        QTest::mouseMove(window, widget.mapTo(widget.window(), QPoint(-4, -4)));
        QTest::mouseRelease(window, Qt::LeftButton, {}, widget.mapTo(widget.window(), QPoint(-4, -4)));
    }
}

void WindowDriver::Click(Control& control) {
    QWidget& widget = WidgetOf(control);
    const bool marked = qobject_cast<QCheckBox*>(&widget) != nullptr || qobject_cast<QRadioButton*>(&widget) != nullptr;
    ClickAt(widget, marked ? QPoint(widget.height() / 2, widget.height() / 2) : widget.rect().center());
}

void WindowDriver::ClickForm(Form& form) {
    ClickAt(WindowOf(form), {1, 1});
}

void WindowDriver::Pick(Control& control, int row) {
    QWidget& widget = WidgetOf(control);
    if (auto* list = qobject_cast<ItemList*>(&widget)) {
        const QModelIndex index = list->model()->index(row, 0);
        list->scrollTo(index);
        ClickAt(*list->viewport(), list->visualRect(index).center());
        return;
    }
    auto* combo = qobject_cast<QComboBox*>(&widget);
    if (combo == nullptr) throw CannotDeliver(control.FullName() + " is no list");
    // During the double-click interval, an open list takes a release for the end of the click that opened it.
    const int interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(kShortly);
    QStyleOptionComboBox option;
    option.initFrom(combo);
    const QRect arrow = combo->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, combo);
    QAbstractItemView* view = combo->view();
    // On a busy machine the click may take too long and close the list again.
    for (int tries = 0; tries < kTries && !view->isVisible(); ++tries) {
        ClickAt(*combo, arrow.center());
        QTest::qWait(2 * kShortly);
    }
    QApplication::setDoubleClickInterval(interval);
    if (!view->isVisible()) throw CannotDeliver("the list of " + control.FullName() + " does not open");
    const QModelIndex index = combo->model()->index(row, 0);
    view->scrollTo(index);
    const QPoint at = view->visualRect(index).center();
    QTest::mouseMove(view->window()->windowHandle(), view->viewport()->mapTo(view->window(), at));
    ClickAt(*view->viewport(), at);
}

void WindowDriver::DoubleClick(ListBox& list, int row) {
    auto& view = WidgetAs<ItemList>(WidgetOf(list));
    const QModelIndex index = view.model()->index(row, 0);
    view.scrollTo(index);
    DoubleClickAt(*view.viewport(), view.visualRect(index).center());
}

void WindowDriver::Spin(UpDown& arrows, bool up) {
    const auto& widget = WidgetAs<SpinArrows>(WidgetOf(arrows));
    QToolButton& arrow = widget.Arrow(up);
    ClickAt(arrow, arrow.rect().center());
}

void WindowDriver::Scroll(ScrollBar& bar, int value) {
    const QPointer<QScrollBar> widget(&WidgetAs<QScrollBar>(WidgetOf(bar)));
    const QPointer<QWindow> window(widget->window()->windowHandle());
    const QPoint at = widget->mapTo(widget->window(), SlideOf(*widget));
    QTest::mousePress(window.data(), Qt::LeftButton, {}, at);
    if (widget == nullptr || !widget->isSliderDown()) throw CannotDeliver(bar.FullName() + " cannot be taken hold of");
    // Set the position directly, as dragging would: a bar has fewer pixels than values.
    widget->setSliderPosition(value);
    QTest::mouseRelease(window.data(), Qt::LeftButton, {}, at);
}

// --- Bars

void WindowDriver::Choose(MenuItem& item) {
    QMainWindow& main = MainOf(WindowOf(item.Parent()));
    std::vector<const MenuItem*> road;
    for (const MenuItem* step = &item; step != nullptr; step = step->Menu()) road.insert(road.begin(), step);
    QAction* action = ActionOf(*road.front(), main);
    ClickAt(*main.menuBar(), main.menuBar()->actionGeometry(action).center());
    for (std::size_t i = 1; i < road.size(); ++i) {
        QMenu* menu = action->menu();
        action = ActionOf(*road[i], main);
        if (menu == nullptr || !menu->isVisible() || !action->isVisible() || !action->isEnabled()) {
            while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
            throw CannotDeliver(ToUtf8(road[i]->Name()) + " cannot be reached in the menu");
        }
        ClickAt(*menu, menu->actionGeometry(action).center());
    }
}

void WindowDriver::PressTool(Toolbar& toolbar, int index) {
    auto& bar = WidgetAs<QToolBar>(WidgetOf(toolbar));
    QAction* action = ActionOf(index, bar);
    QWidget* button = action != nullptr ? bar.widgetForAction(action) : nullptr;
    if (button == nullptr) throw CannotDeliver("there is no button " + std::to_string(index));
    if (button->isVisible()) return ClickAt(*button, button->rect().center());
    // The button is hidden and cannot be clicked, but the form still knows it.
    Deliver([&] {
        toolbar.Parent().UserActivated();
        toolbar.UserPressed(index);
    });
}

// --- The window's frame

void WindowDriver::Close(Form& form) {
    WindowOf(form).windowHandle()->close();
}

void WindowDriver::Minimise(Form& form) {
    WindowOf(form).showMinimized();
}

void WindowDriver::Restore(Form& form) {
    QWidget& window = WindowOf(form);
    window.showNormal();
    window.activateWindow();
}

void WindowDriver::Place(Form& form, int left, int top, int width, int height) {
    WindowOf(form);
    front_.WindowOf(form)->MoveByUser(left, top, width, height);
}

// --- Boxes

void WindowDriver::OpenBox(const MessageBox& box) {
    QWidget* owner = boxes_.empty() ? DialogOwner() : boxes_.back().data();
    boxes_.emplace_back(MakeBox(box, owner));
    boxes_.back()->setWindowModality(Qt::ApplicationModal);
    boxes_.back()->show();
    LetGo();
    Settle();
}

void WindowDriver::AnswerBox(Answer answer) {
    if (boxes_.empty() || boxes_.back() == nullptr || !boxes_.back()->isVisible()) throw CannotDeliver("no message box is open");
    QMessageBox& box = *boxes_.back();
    for (QAbstractButton* button : box.buttons()) {
        if (box.buttonRole(button) != Role(answer)) continue;
        ClickAt(*button, button->rect().center());
        if (AnswerOf(box) != answer || box.isVisible()) throw CannotDeliver("the box does not close with this answer");
        DropBox();
        if (Form* form = ActiveForm()) front_.Activated(*form);
        return;
    }
    throw CannotDeliver("the message box has no such button");
}

void WindowDriver::DropBox() {
    if (boxes_.empty()) return;
    delete boxes_.back();
    boxes_.pop_back();
    if (!boxes_.empty() && boxes_.back() != nullptr) boxes_.back()->activateWindow();
}

// --- Rest

bool WindowDriver::AtRest() const {
    for (const Form* loaded : LoadedForms())
        if (loaded->Visible() && front_.WindowOf(*loaded) != nullptr && front_.WindowOf(*loaded)->Arriving()) return false;
    const Form* form = ActiveForm();
    const FormWindow* window = form != nullptr ? front_.WindowOf(*form) : nullptr;
    const QWidget* wanted = !boxes_.empty() ? boxes_.back().data() : window != nullptr ? window->Top() : nullptr;
    return wanted == nullptr || !wanted->isVisible() || wanted->isMinimized() || QApplication::activePopupWidget() != nullptr ||
           (!front_.ActivationPending() && QApplication::activeWindow() == wanted);
}

void WindowDriver::Settle() {
    QElapsedTimer waited;
    waited.start();
    do {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        // Without a window manager, no other window is activated when one closes.
        if (QApplication::activeWindow() == nullptr && boxes_.empty() && ActiveForm() != nullptr) front_.Activated(*ActiveForm());
    } while (!AtRest() && waited.elapsed() < kPatience);
}

std::string WindowDriver::Mismatch(const Control& control) {
    if (const auto* item = As<MenuItem>(&control)) return Difference(*item, MainOf(*front_.WindowOf(item->Parent())->Top()));
    const QWidget* widget = front_.WidgetOf(control);
    if (widget == nullptr) return As<Timer>(&control) != nullptr ? "" : "no widget";
    return Difference(control, *widget);
}

std::string WindowDriver::Mismatch(const Form& form) {
    const FormWindow* window = front_.WindowOf(form);
    return window == nullptr ? "no window" : Difference(form, *window);
}

void WindowDriver::Shot(const std::string& file) {
    QDir().mkpath(QFileInfo(QString::fromStdString(file)).path());
    SaveWindows(file);
}

}  // namespace vatro
