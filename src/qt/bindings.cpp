// SPDX-License-Identifier: MIT
#include "bindings.h"

#include <QWidget>
#include <utility>

namespace vatro {

Bindings::Bindings(InputSurroundings surroundings) : surroundings_(std::move(surroundings)), scope_(std::make_unique<QObject>()) {}

Bindings::~Bindings() {
    Close();
}

QWidget* Bindings::WidgetOf(const Control& control) const {
    const auto found = widgets_.find(&control);
    return found == widgets_.end() ? nullptr : found->second.data();
}

void Bindings::NameWidgets(const QString& caption) const {
    for (QWidget* widget : namedByCaption_) widget->setAccessibleName(caption);
}

void Bindings::Close() {
    for (const QPointer<Input>& input : inputs_)
        if (input) input->Release();
    scope_.reset();
}

void Bindings::AddInput(Control& control, QWidget& widget, QLineEdit* editor) {
    inputs_.emplace_back(new Input(control, widget, editor, surroundings_));
}

}  // namespace vatro
