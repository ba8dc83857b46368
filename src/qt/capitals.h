// SPDX-License-Identifier: MIT
//
// A field outside the program's forms that accepts the same characters as the fields of the forms.
#pragma once

#include <QValidator>
#include <string_view>

namespace vatro {

/// Lets only characters of a set into a field, typed or pasted, and turns letters into capitals.
class Capitals : public QValidator {
    Q_OBJECT

public:
    /// `characters` must outlive this object.
    Capitals(std::string_view characters, QObject* parent) : QValidator(parent), characters_(characters) {}

    /// Removes what is not in the set from the text; what is left is always acceptable.
    State validate(QString& text, int& caret) const override;

private:
    std::string_view characters_;
};

}  // namespace vatro
