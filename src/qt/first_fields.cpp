// SPDX-License-Identifier: MIT
#include "first_fields.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <algorithm>
#include <utility>
#include <vector>

#include "capitals.h"
#include "entry/keys.h"
#include "qt_text.h"
#include "signal_colours.h"

namespace vatro {

namespace {

/// Room for a call, in characters.
constexpr int kCallWidth = 12;
/// The property with the hint beside a field.
constexpr const char* kHint = "hint";

void Embolden(QWidget& widget) {
    QFont font = widget.font();
    font.setBold(true);
    widget.setFont(font);
}

}  // namespace

QLabel* Words(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

FirstFields::FirstFields(const FirstAnswers& proposed) : grid_(new QGridLayout(this)) {
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setColumnStretch(1, 1);
    QLabel* intro = Words(QStringLiteral("Svar her, så er loggen klar. Enter går til næste felt."));
    Embolden(*intro);
    grid_->addWidget(intro, 0, 0, 1, 2);
    call_ = AddField(QStringLiteral("&Kaldesignal:"), QStringLiteral("Kaldesignal"), kCallWidth,
                     QStringLiteral("med /P, nøjagtig som på EDRs liste"));
    call_->setValidator(new Capitals(kCallCharacters, call_));
    callMessage_ = AddMessage();
    AddClass(proposed.contestClass);
    telephone_ = AddField(QStringLiteral("&Telefon:"), QStringLiteral("Telefon"), kTelephoneLength, QStringLiteral("står på papirerne"));
    telephone_->setMaxLength(kTelephoneLength);
    telephone_->setValidator(new Capitals(kDigitCharacters, telephone_));
    telephone_->setText(ToQt(proposed.telephone));
    operator_ = AddField(QStringLiteral("&Operatør:"), QStringLiteral("Operatør"), kOperatorLength,
                         QStringLiteral("den, der logger nu; højst seks tegn"));
    operator_->setMaxLength(kOperatorLength);
    operator_->setValidator(new Capitals(kCallCharacters, operator_));
    operator_->setText(ToQt(proposed.operatorCall));
    operatorMessage_ = AddMessage();
    AddDirectory(proposed.directory);
    AddClock(proposed.offset);
    grid_->setRowStretch(grid_->rowCount(), 1);
    Watch(*call_, FirstQuestion::Call);
    Watch(*operator_, FirstQuestion::Operator);
    Watch(*directory_, FirstQuestion::Directory);
}

QLabel* FirstFields::AddMessage() {
    QLabel* message = Words({});
    message->hide();
    grid_->addWidget(message, grid_->rowCount(), 1);
    return message;
}

void FirstFields::AddRow(const QString& caption, QWidget& buddy, QLayout& fields) {
    auto* label = new QLabel(caption);
    label->setBuddy(&buddy);
    const int row = grid_->rowCount();
    grid_->addWidget(label, row, 0);
    grid_->addLayout(&fields, row, 1);
}

QLineEdit* FirstFields::AddField(const QString& caption, const QString& name, int characters, const QString& hint) {
    auto* field = new QLineEdit;
    field->setAccessibleName(name);
    field->setAccessibleDescription(hint);
    field->setProperty(kHint, hint);
    // Some more than the text, for the frame and the caret.
    field->setFixedWidth(fontMetrics().horizontalAdvance(u'W') * (characters + 2));
    auto* fields = new QHBoxLayout;
    fields->addWidget(field);
    fields->addWidget(Words(hint), 1);
    AddRow(caption, *field, *fields);
    return field;
}

void FirstFields::AddClass(char chosen) {
    auto* fields = new QHBoxLayout;
    fields->setSpacing(fontMetrics().averageCharWidth() * 3);
    for (auto& [option, letter] : {std::pair{&classA_, 'A'}, std::pair{&classB_, 'B'}}) {
        *option = new QRadioButton(QStringLiteral("&") + QLatin1Char(letter));
        (*option)->setAccessibleName(QStringLiteral("Klasse ") + QLatin1Char(letter));
        (*option)->setChecked(letter == chosen);
        fields->addWidget(*option);
    }
    fields->addStretch(1);
    AddRow(QStringLiteral("Klasse:"), *classA_, *fields);
}

void FirstFields::AddDirectory(const std::string& directory) {
    directory_ = new QLineEdit(QString::fromStdString(directory));
    directory_->setAccessibleName(QStringLiteral("Logbibliotek"));
    auto* choose = new QPushButton(QStringLiteral("&Vælg..."));
    choose->setAutoDefault(false);
    auto* fields = new QHBoxLayout;
    fields->addWidget(directory_, 1);
    fields->addWidget(choose);
    AddRow(QStringLiteral("&Logbibliotek:"), *directory_, *fields);
    directoryMessage_ = AddMessage();
    useLogs_ = new QCheckBox(QStringLiteral("B&rug de logge, og log videre i dem"));
    useLogs_->hide();
    grid_->addWidget(useLogs_, grid_->rowCount(), 1);
    useLogsMessage_ = AddMessage();
    connect(choose, &QPushButton::clicked, this, &FirstFields::ChooseClicked);
    connect(useLogs_, &QCheckBox::toggled, this, [this] { Q_EMIT Changed(FirstQuestion::UseLogs); });
}

void FirstFields::AddClock(int offset) {
    offset_ = new QSpinBox;
    offset_->setRange(kLeastOffset, kGreatestOffset);
    offset_->setValue(offset);
    offset_->setAccessibleName(QStringLiteral("UTC offset"));
    question_ = Words({});
    Embolden(*question_);
    advice_ = Words({});
    auto* fields = new QHBoxLayout;
    fields->addWidget(offset_);
    fields->addWidget(question_, 1);
    AddRow(QStringLiteral("&UTC offset:"), *offset_, *fields);
    grid_->addWidget(advice_, grid_->rowCount(), 1);
    connect(offset_, &QSpinBox::valueChanged, this, &FirstFields::OffsetChanged);
}

void FirstFields::Watch(QLineEdit& field, FirstQuestion about) {
    connect(&field, &QLineEdit::textChanged, this, [this, about] { Q_EMIT Changed(about); });
    connect(&field, &QLineEdit::editingFinished, this, [this, about] { Q_EMIT Finished(about); });
}

FirstAnswers FirstFields::Answers() const {
    FirstAnswers answers;
    answers.call = FromQt(call_->text());
    answers.contestClass = classB_->isChecked() ? 'B' : 'A';
    answers.telephone = FromQt(telephone_->text());
    answers.operatorCall = FromQt(operator_->text());
    answers.directory = directory_->text().toStdString();
    answers.useLogs = useLogs_->isChecked();
    answers.offset = offset_->value();
    return answers;
}

FirstFields::Row FirstFields::RowOf(FirstQuestion about) const {
    switch (about) {
        case FirstQuestion::Call:
            return {call_, callMessage_};
        case FirstQuestion::Operator:
            return {operator_, operatorMessage_};
        case FirstQuestion::Directory:
            return {directory_, directoryMessage_};
        case FirstQuestion::UseLogs:
            return {useLogs_, useLogsMessage_};
    }
    return {};
}

QWidget& FirstFields::Field(FirstQuestion about) const {
    return *RowOf(about).field;
}

void FirstFields::Say(FirstQuestion about, const std::string& text, bool wrong) {
    const Row row = RowOf(about);
    row.message->setText(ToQt(text));
    row.message->setVisible(!text.empty());
    // Nothing else on the page is bold below a field, so the colour is not the only sign.
    QFont font = this->font();
    font.setBold(wrong);
    row.message->setFont(font);
    QPalette colours = palette();
    if (wrong) colours.setColor(QPalette::WindowText, ColoursOf(Signal::Wrong, colours).ground);
    row.message->setPalette(colours);
    row.field->setAccessibleDescription(text.empty() ? row.field->property(kHint).toString() : row.message->text());
}

void FirstFields::Unsay(FirstQuestion about) {
    if (!RowOf(about).message->isHidden()) Say(about, {}, false);
}

void FirstFields::ShowUseLogs(bool shown) {
    useLogs_->setVisible(shown);
}

void FirstFields::ForbidLogs() {
    useLogs_->setChecked(false);
}

void FirstFields::SetDirectory(const std::string& utf8) {
    directory_->setText(QString::fromStdString(utf8));
}

void FirstFields::ShowClock(const std::string& question, const std::string& advice) {
    question_->setText(ToQt(question));
    offset_->setAccessibleDescription(question_->text());
    advice_->setText(ToQt(advice));
}

QWidget* FirstFields::After(const QWidget& field) const {
    QWidget* const chosen = classB_->isChecked() ? classB_ : classA_;
    const std::vector<QWidget*> order{call_, chosen, telephone_, operator_, directory_, useLogs_, offset_};
    auto next = std::find(order.begin(), order.end(), &field);
    if (next != order.end()) ++next;
    if (next != order.end() && *next == useLogs_ && useLogs_->isHidden()) ++next;
    return next != order.end() ? *next : nullptr;
}

bool FirstFields::IsLast(const QWidget& field) const {
    return &field == offset_;
}

}  // namespace vatro
