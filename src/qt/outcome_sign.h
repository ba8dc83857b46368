// SPDX-License-Identifier: MIT
//
// A tick or a cross on its colour, as high as a line of text, beside a line that tells how something ended.
#pragma once

#include <QWidget>

namespace vatro {

class OutcomeSign : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
    void SetGood(bool good);
    bool Good() const { return good_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool good_ = true;
};

}  // namespace vatro
