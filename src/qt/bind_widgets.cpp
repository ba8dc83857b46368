// SPDX-License-Identifier: MIT
//
// Bindings of lists, buttons, check boxes, labels, pictures and frames.
#include <QCheckBox>
#include <QFontDatabase>
#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWidget>
#include <algorithm>

#include "application.h"
#include "bind_common.h"
#include "binder.h"
#include "bindings.h"
#include "column_head.h"
#include "deliver.h"
#include "fields.h"
#include "forms.h"
#include "item_list.h"
#include "picture_view.h"
#include "qt_text.h"

namespace vatro {

namespace {

constexpr double kFixedPitchPoints = 12;

QColor ColourOf(Colour colour) {
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

/// Black text without a background of its own uses the desktop's text colour.
QColor TextColour(const Label& label) {
    return label.ForeColour() == kBlack && !label.Opaque() ? QColor() : ColourOf(label.ForeColour());
}

void PushLook(const Label& control, QLabel& widget) {
    widget.setFont(ToQt(control.LabelFont(), widget.font()));
    QPalette palette;
    if (const QColor text = TextColour(control); text.isValid()) palette.setColor(QPalette::WindowText, text);
    if (control.Opaque()) palette.setColor(QPalette::Window, ColourOf(control.BackColour()));
    widget.setPalette(palette);
    widget.setAutoFillBackground(control.Opaque());
}

void PushLook(const Label& control, FittedText& widget) {
    const Font& font = control.LabelFont();
    widget.SetTextFont(ToQt(font.name), font.size, font.bold);
    widget.SetColours(TextColour(control), control.Opaque() ? ColourOf(control.BackColour()) : QColor());
}

template <class W>
void BindText(Label& control, W& widget) {
    PushState(control, widget);
    PushLook(control, widget);
    widget.setText(ToQt(control.Caption()));
    control.mirror = [&control, &widget](Aspect aspect, int /*row*/) {
        FollowState(control, widget, aspect);
        if (aspect == Aspect::Text) widget.setText(ToQt(control.Caption()));
        if (aspect == Aspect::Look) PushLook(control, widget);
    };
}

void PushProgress(const ProgressBar& control, QProgressBar& widget) {
    // Qt draws a range of 0 to 0 as a busy indicator.
    widget.setRange(0, std::max(control.Max(), 1));
    widget.setValue(control.Value());
}

/// The form handles the access key; the button only shows it.
void PushCaption(const std::string& caption, QAbstractButton& widget) {
    widget.setText(ToQt(caption));
    widget.setShortcut(QKeySequence());
}

void PushRow(const ListBox& control, ItemList& widget) {
    const QModelIndex index = widget.model()->index(control.ListIndex(), 0);
    if (!index.isValid()) {
        widget.clearSelection();
        widget.setCurrentIndex({});
    } else if (widget.currentIndex() != index || !widget.selectionModel()->isSelected(index)) {
        widget.setCurrentIndex(index);
    }
    if (index.isValid()) widget.scrollTo(index);
}

/// Changes rows while selection signals are blocked. During the change, the selected row may have a number that the program does not
/// know yet, and Qt selects a neighbour of a removed row; neither is the user's choice.
template <class Change>
void ChangeRows(const ListBox& control, ItemList& widget, Change change) {
    const QPersistentModelIndex before = widget.currentIndex();
    {
        const QSignalBlocker quiet(widget.selectionModel());
        change();
        PushRow(control, widget);
    }
    // The view has not been told of a new selection.
    widget.update(before);
    widget.update(widget.currentIndex());
}

void FollowRows(const ListBox& control, ItemModel& model, ItemList& widget, Aspect aspect, int row) {
    switch (aspect) {
        case Aspect::Items:
            model.Reset();
            PushRow(control, widget);
            break;
        case Aspect::ItemAdded:
            ChangeRows(control, widget, [&] { model.Added(row); });
            break;
        case Aspect::ItemRemoved:
            ChangeRows(control, widget, [&] { model.Removed(row); });
            break;
        case Aspect::ItemChanged:
            model.RowChanged(row);
            break;
        case Aspect::ListIndex:
            PushRow(control, widget);
            break;
        default:
            break;
    }
}

}  // namespace

void PushState(const Control& control, QWidget& widget) {
    for (const Aspect aspect : {Aspect::Enabled, Aspect::Visible, Aspect::ToolTip}) FollowState(control, widget, aspect);
    widget.setFocusPolicy(control.TabStop() ? Qt::StrongFocus : control.TakesFocus() ? Qt::ClickFocus : Qt::NoFocus);
}

void FollowState(const Control& control, QWidget& widget, Aspect aspect) {
    if (aspect == Aspect::Enabled) widget.setEnabled(control.Enabled());
    if (aspect == Aspect::Visible && widget.isHidden() == control.Visible()) widget.setVisible(control.Visible());
    if (aspect == Aspect::ToolTip) widget.setToolTip(ToQt(control.ToolTip()));
}

void WidenButton(QPushButton& button) {
    const QFontMetrics metrics = button.fontMetrics();
    const int needed = metrics.size(Qt::TextShowMnemonic, button.text()).width() + 4 * metrics.averageCharWidth();
    button.setMinimumWidth(qMax(needed, button.minimumSizeHint().width()));
}

QFont FixedPitchFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(kFixedPitchPoints);
    font.setStyleStrategy(kPlainLetters);
    return font;
}

QFont ToQt(const Font& font, const QFont& otherwise) {
    if (font.name == "Fixedsys") return FixedPitchFont();
    QFont result = otherwise;
    if (!font.name.empty()) result.setFamily(ToQt(font.name));
    if (font.size > 0) result.setPointSizeF(font.size);
    result.setBold(font.bold);
    result.setUnderline(font.underline);
    return result;
}

void Bind(ListBox& control, ItemList& widget, Bindings& bindings) {
    PushState(control, widget);
    widget.setFont(ToQt(control.ListFont(), widget.font()));
    widget.SetColumns(control.ColumnCount());
    auto* model = new ItemModel(control, &widget);
    widget.setModel(model);
    PushRow(control, widget);
    bindings.AddInput(control, widget, nullptr);
    // Runs when the window's connections are closed, before the rows are gone.
    QObject::connect(&bindings.Scope(), &QObject::destroyed, model, &ItemModel::Release);
    QObject::connect(widget.selectionModel(), &QItemSelectionModel::selectionChanged, &bindings.Scope(), [&control, &widget] {
        const QModelIndexList rows = widget.selectionModel()->selectedIndexes();
        if (rows.isEmpty() || rows.front().row() == control.ListIndex()) return;
        Deliver([&, row = rows.front().row()] {
            if (control.Parent().Reachable()) control.UserSelected(row);
        });
    });
    QObject::connect(&widget, &QAbstractItemView::doubleClicked, &bindings.Scope(), [&control](const QModelIndex& index) {
        Deliver([&, row = index.row()] {
            if (control.Parent().Reachable()) control.UserDoubleClicked(row);
        });
    });
    control.mirror = [&control, &widget, model](Aspect aspect, int row) {
        FollowState(control, widget, aspect);
        FollowRows(control, *model, widget, aspect, row);
    };
}

void Bind(Button& control, QPushButton& widget, Bindings& bindings) {
    PushState(control, widget);
    PushCaption(control.Caption(), widget);
    WidenButton(widget);
    widget.setAutoDefault(false);
    bindings.AddInput(control, widget, nullptr);
    QObject::connect(&widget, &QAbstractButton::clicked, &bindings.Scope(), [&control] {
        Deliver([&] {
            if (control.Parent().Reachable()) control.Press();
        });
    });
    control.mirror = [&control, &widget](Aspect aspect, int /*row*/) { FollowState(control, widget, aspect); };
}

void Bind(UpDown& control, SpinArrows& widget, Bindings& bindings) {
    PushState(control, widget);
    widget.setAccessibleName(QStringLiteral("Op og ned"));
    QObject::connect(&widget, &SpinArrows::Stepped, &bindings.Scope(), [&control](bool up) {
        Deliver([&] {
            if (control.Parent().Reachable()) control.Spin(up);
        });
    });
    control.mirror = [&control, &widget](Aspect aspect, int /*row*/) { FollowState(control, widget, aspect); };
}

void Bind(ProgressBar& control, QProgressBar& widget, Bindings& bindings) {
    PushState(control, widget);
    PushProgress(control, widget);
    bindings.NameByCaption(widget);
    control.mirror = [&control, &widget](Aspect aspect, int /*row*/) {
        FollowState(control, widget, aspect);
        if (aspect == Aspect::Value) PushProgress(control, widget);
    };
}

void Bind(CheckBox& control, QCheckBox& widget, Bindings& bindings) {
    PushState(control, widget);
    PushCaption(control.Caption(), widget);
    widget.setChecked(control.Value());
    bindings.AddInput(control, widget, nullptr);
    QObject::connect(&widget, &QAbstractButton::clicked, &bindings.Scope(), [&control, &widget] {
        // Undo the toggle that Qt has made; the control decides.
        widget.setChecked(control.Value());
        Deliver([&] {
            if (control.Parent().Reachable()) control.Flip();
        });
    });
    control.mirror = [&control, &widget](Aspect aspect, int /*row*/) {
        FollowState(control, widget, aspect);
        if (aspect == Aspect::Value) widget.setChecked(control.Value());
    };
}

void Bind(OptionButton& control, QRadioButton& widget, Bindings& bindings) {
    PushState(control, widget);
    PushCaption(control.Caption(), widget);
    // The control, not Qt, turns off the other options of the frame.
    widget.setAutoExclusive(false);
    widget.setChecked(control.Value());
    bindings.AddInput(control, widget, nullptr);
    QObject::connect(&widget, &QAbstractButton::clicked, &bindings.Scope(), [&control, &widget] {
        // Undo the toggle that Qt has made; the control decides.
        widget.setChecked(control.Value());
        Deliver([&] {
            if (control.Parent().Reachable()) control.UserChosen(FocusWay::Mouse);
        });
    });
    control.mirror = [&control, &widget](Aspect aspect, int /*row*/) {
        FollowState(control, widget, aspect);
        if (aspect == Aspect::Value) widget.setChecked(control.Value());
    };
}

void Bind(ScrollBar& control, QScrollBar& widget, Bindings& bindings) {
    const ScrollBar::Range& limits = control.Limits();
    PushState(control, widget);
    widget.setRange(limits.min, limits.max);
    widget.setSingleStep(limits.smallChange);
    widget.setPageStep(limits.largeChange);
    widget.setValue(control.Value());
    // Report one change when the slider is released, not many while it is dragged.
    widget.setTracking(false);
    widget.setContextMenuPolicy(Qt::PreventContextMenu);
    bindings.AddInput(control, widget, nullptr);
    QObject::connect(&widget, &QAbstractSlider::valueChanged, &bindings.Scope(), [&control](int value) {
        if (value == control.Value()) return;
        Deliver([&] {
            if (control.Parent().Reachable()) control.UserScrolled(value);
        });
    });
    control.mirror = [&control, &widget](Aspect aspect, int /*row*/) {
        FollowState(control, widget, aspect);
        if (aspect == Aspect::Value) widget.setValue(control.Value());
    };
}

void Bind(Label& control, QLabel& widget, Bindings& /*bindings*/) {
    widget.setTextFormat(Qt::PlainText);
    BindText(control, widget);
}

void Bind(Label& control, FittedText& widget, Bindings& /*bindings*/) {
    BindText(control, widget);
}

void Bind(Picture& control, PictureView& widget, Bindings& bindings) {
    PushState(control, widget);
    widget.SetPicture(ToQt(control.File()));
    bindings.NameByCaption(widget);
    QObject::connect(&widget, &PictureView::Clicked, &bindings.Scope(), [&control] {
        Deliver([&] {
            if (control.Parent().Reachable()) control.UserClicked();
        });
    });
    control.mirror = [&control, &widget](Aspect aspect, int /*row*/) { FollowState(control, widget, aspect); };
}

void Bind(Label& control, ColumnHead& widget, Bindings& /*bindings*/) {
    PushState(control, widget);
    widget.SetCaption(ToQt(control.Caption()));
    control.mirror = [&control, &widget](Aspect aspect, int /*row*/) {
        FollowState(control, widget, aspect);
        if (aspect == Aspect::Text) widget.SetCaption(ToQt(control.Caption()));
    };
}

void Bind(Frame& control, QFrame& widget, Bindings& bindings) {
    PushState(control, widget);
    const QString head = widget.objectName() + QStringLiteral("Caption");
    if (auto* caption = widget.findChild<ColumnHead*>(head)) {
        caption->SetCaption(ToQt(control.Caption()));
        widget.setAccessibleName(PlainCaption(control.Caption()).simplified());
    } else {
        bindings.AddProblem(QStringLiteral("no head %1").arg(head));
    }
    control.mirror = [&control, &widget](Aspect aspect, int /*row*/) { FollowState(control, widget, aspect); };
}

}  // namespace vatro
