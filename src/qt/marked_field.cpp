// SPDX-License-Identifier: MIT
#include "marked_field.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "entry/frmMain.h"
#include "field_mark.h"
#include "qt_front.h"
#include "window.h"

namespace vatro {

namespace {

template <class... Kinds>
bool IsOneOf(const QWidget* widget) {
    return ((qobject_cast<const Kinds*>(widget) != nullptr) || ...);
}

}  // namespace

void MarkedField::Follow(bool sending) {
    QWidget* field = FieldWithKeys(sending);
    if (field == nullptr) {
        if (mark_ != nullptr) mark_->hide();
        return;
    }
    if (mark_ == nullptr) mark_ = new FieldMark;
    mark_->Surround(*field);
}

QWidget* MarkedField::FieldWithKeys(bool sending) const {
    const Form* main = frmMain.Peek();
    const FormWindow* window = main != nullptr ? front_.WindowOf(*main) : nullptr;
    if (window == nullptr || main->ActiveControl() == nullptr) return FocusElsewhere();
    const bool inFront = ActiveForm() == main && QApplication::activeWindow() == window->Top();
    return sending || inFront ? front_.WidgetOf(*main->ActiveControl()) : FocusElsewhere();
}

QWidget* MarkedField::FocusElsewhere() const {
    QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr || focus->window() != QApplication::activeWindow()) return nullptr;
    // The editor of a combo box or a number is a part of it.
    if (IsOneOf<QComboBox, QAbstractSpinBox>(focus->parentWidget())) focus = focus->parentWidget();
    if (!IsOneOf<QLineEdit, QAbstractButton, QComboBox, QAbstractSpinBox, QAbstractSlider, QPlainTextEdit>(focus)) return nullptr;
    // A window may mark its fields itself.
    for (const FieldMark* other : focus->window()->findChildren<FieldMark*>())
        if (other != mark_) return nullptr;
    return focus;
}

}  // namespace vatro
