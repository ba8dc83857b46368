// SPDX-License-Identifier: MIT
//
// Puts a frame around the field that receives the keys, in whatever window it is: the call field keeps its frame while the sending window
// has the focus, because the keys go to the field all the same.
#pragma once

#include <QPointer>

class QWidget;

namespace vatro {

class FieldMark;
class Form;
class QtFront;

class MarkedField {
public:
    /// `front` must outlive this object.
    explicit MarkedField(const QtFront& front) : front_(front) {}

    /// Marks the field that receives the keys now, or none. `sending` tells that the sending window has the focus, whose keys go to the
    /// main form.
    void Follow(bool sending);

private:
    QWidget* FieldWithKeys(bool sending) const;
    /// The field or button with the focus in a window other than the main form's.
    QWidget* FocusElsewhere() const;

    const QtFront& front_;
    /// Created at first use; deleted with the window in which it is.
    QPointer<FieldMark> mark_;
};

}  // namespace vatro
