// SPDX-License-Identifier: MIT
#include "operator_mark.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPalette>
#include <utility>

#include "entry/frmMain.h"
#include "qt_front.h"
#include "signal_colours.h"

namespace vatro {

OperatorMark::OperatorMark(QMainWindow& window, QComboBox& box)
    : QObject(&window), box_(box), toolTip_(box.toolTip()), word_(new QLabel(QStringLiteral("ingen"), box.lineEdit())) {
    word_->setAttribute(Qt::WA_TransparentForMouseEvents);
    word_->setIndent(word_->fontMetrics().averageCharWidth() / 2);
    word_->hide();
    box_.lineEdit()->installEventFilter(this);
    connect(box_.lineEdit(), &QLineEdit::textChanged, this, &OperatorMark::Look);
    window.installEventFilter(this);
    Look();
}

void OperatorMark::Look() {
    const bool mark = box_.currentText().trimmed().isEmpty();
    if (!mark && !marked_) return;
    marked_ = mark;
    const QPalette scheme = QApplication::palette();
    QPalette field;
    QPalette list;
    if (mark) {
        const SignalColours colours = ColoursOf(Signal::Notice, scheme);
        for (const auto& [role, colour] : {std::pair(QPalette::Base, colours.ground), std::pair(QPalette::Text, colours.ink),
                                           std::pair(QPalette::Button, colours.ground), std::pair(QPalette::ButtonText, colours.ink)}) {
            field.setColor(role, colour);
            // The list would inherit the colours of the field.
            list.setColor(role, scheme.color(role));
        }
        QPalette word;
        word.setColor(QPalette::WindowText, colours.ink);
        word_->setPalette(word);
        word_->setGeometry(box_.lineEdit()->rect());
    }
    word_->setVisible(mark);
    box_.setPalette(field);
    box_.view()->setPalette(list);
    box_.setToolTip(mark ? QStringLiteral("Ingen operatør. ") + toolTip_ : toolTip_);
}

bool OperatorMark::eventFilter(QObject* watched, QEvent* event) {
    if (watched == box_.lineEdit()) {
        if (event->type() == QEvent::Resize) word_->setGeometry(box_.lineEdit()->rect());
    } else if (event->type() == QEvent::PaletteChange) {
        Look();
    }
    return QObject::eventFilter(watched, event);
}

void MarkOperator(const QtFront& front) {
    auto& box = dynamic_cast<QComboBox&>(*front.WidgetOf(frmMain->operatorBox));
    new OperatorMark(dynamic_cast<QMainWindow&>(*box.window()), box);
}

}  // namespace vatro
