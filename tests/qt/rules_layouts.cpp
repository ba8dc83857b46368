// SPDX-License-Identifier: MIT
#include "qt/rules_layouts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "column_head.h"
#include "item_list.h"
#include "layouts.h"
#include "picture_view.h"

namespace vatro {

namespace {

template <class W>
W* Add(QLayout* rows, const char* name) {
    auto* widget = new W;
    widget->setObjectName(QLatin1String(name));
    rows->addWidget(widget);
    return widget;
}

void MakeRules(QWidget* form) {
    form->resize(400, 300);
    auto* rows = new QVBoxLayout(form);
    rows->setContentsMargins(2, 2, 2, 2);
    rows->setSpacing(1);
    auto* frame = Add<QFrame>(rows, "Frame1");
    auto* inside = new QVBoxLayout(frame);
    Add<ColumnHead>(inside, "Frame1Caption")->setProperty("fields", QStringLiteral("Text1_1"));
    Add<QLineEdit>(inside, "Text1_0");
    Add<QLineEdit>(inside, "Text1_1");
    Add<QCheckBox>(rows, "Check1");
    Add<QPushButton>(rows, "Command1");
    Add<QPushButton>(rows, "Command2");
    Add<ItemList>(rows, "List1")->setMinimumHeight(60);
    Add<QComboBox>(rows, "Combo1");
}

void MakeRulesChoice(QWidget* form) {
    form->resize(400, 300);
    auto* rows = new QVBoxLayout(form);
    Add<QLineEdit>(rows, "Text1");
    auto* reports = new QVBoxLayout(Add<QFrame>(rows, "Frame1"));
    Add<ColumnHead>(reports, "Frame1Caption");
    for (const char* name : {"optRST_0", "optRST_1", "optRST_2"}) Add<QRadioButton>(reports, name);
    auto* numbers = new QVBoxLayout(Add<QFrame>(rows, "Frame2"));
    Add<ColumnHead>(numbers, "Frame2Caption");
    for (const char* name : {"optNo_0", "optNo_1"}) Add<QRadioButton>(numbers, name);
    Add<QScrollBar>(rows, "HScroll1")->setOrientation(Qt::Horizontal);
    Add<QPushButton>(rows, "cmdOK");
}

void MakeRulesOver(QWidget* form) {
    form->resize(200, 100);
    auto* rows = new QVBoxLayout(form);
    Add<QLineEdit>(rows, "Text1");
    Add<QPushButton>(rows, "cmdOK");
}

void MakeRulesLook(QWidget* form) {
    form->resize(300, 300);
    auto* rows = new QVBoxLayout(form);
    Add<QPlainTextEdit>(rows, "Text1");
    Add<ItemList>(rows, "List1");
    Add<PictureView>(rows, "Image1")->setFixedHeight(40);
    Add<QPushButton>(rows, "cmdOK");
}

}  // namespace

void AddRulesLayouts() {
    AddLayout("frmRules", MakeRules);
    AddLayout("frmRulesChoice", MakeRulesChoice);
    AddLayout("frmRulesOver", MakeRulesOver);
    AddLayout("frmRulesLook", MakeRulesLook);
}

}  // namespace vatro
