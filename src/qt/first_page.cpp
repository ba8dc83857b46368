// SPDX-License-Identifier: MIT
#include "first_page.h"

#include <QApplication>
#include <QCheckBox>
#include <QDateTime>
#include <QDir>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSpinBox>
#include <QStyle>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "capitals.h"
#include "clock.h"
#include "codepage.h"
#include "columns.h"
#include "deliver.h"
#include "dialogs.h"
#include "entry/keys.h"
#include "field_mark.h"
#include "fields.h"
#include "frame/settings.h"
#include "frame/station.h"
#include "names.h"
#include "numbers.h"
#include "platform.h"
#include "qt_text.h"
#include "signal_colours.h"

namespace vatro {

using namespace literals;

namespace {

/// Width of the page, in characters of its font.
constexpr int kWidth = 84;
constexpr int kSecond = 1000;
/// Room for a call, in characters.
constexpr int kCallWidth = 12;

QLabel* Words(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

void Embolden(QWidget& widget) {
    QFont font = widget.font();
    font.setBold(true);
    widget.setFont(font);
}

void StoreAnswers(const FirstAnswers& answers, const std::string& directory) {
    const SettingsBatch together(platform().settings);
    StoreSetting(setting::kMyCall, answers.call);
    StoreSetting(setting::kContestClass, std::string(1, answers.contestClass));
    StoreSetting(setting::kTelephone, answers.telephone);
    StoreSetting(setting::kLastOperator, FixedText<kOperatorLength>(answers.operatorCall).Padded());
    StoreSetting(setting::kUtc, PlainNumber(answers.offset));
    StoreSetting(setting::kLogDirectory, directory);
}

/// The answers that the page begins with. Settings that somebody has prepared are kept.
FirstAnswers Proposed(const std::filesystem::path& home) {
    const DateTime local = platform().clock.Now();
    FirstAnswers answers;
    answers.contestClass = ReadSetting(setting::kContestClass) == "B" ? 'B' : 'A';
    answers.telephone = platform().settings.Read(setting::kTelephone.section, setting::kTelephone.readKey).value_or("");
    answers.operatorCall = FixedText<kOperatorLength>(ReadSetting(setting::kLastOperator)).Trimmed();
    answers.directory = ProposedLogDirectory(home, local);
    const auto offset = platform().settings.Read(setting::kUtc.section, setting::kUtc.readKey);
    answers.offset = offset && IsNumeric(*offset) ? static_cast<int>(NumericValue(*offset))
                                                  : ProposedOffset(local, FromQtTime(QDateTime::currentDateTimeUtc()));
    return answers;
}

/// Empty if the operator has cancelled.
std::string ChosenDirectory() {
    try {
        return ToUtf8(DirectoryOf(ChooseMarkerFile("setlog.txt", "Vælg eller opret logbibliotek"_t)));
    } catch (const RunTimeError&) {
        return {};
    }
}

}  // namespace

FirstPage::FirstPage(const FirstAnswers& proposed, Surroundings surroundings) : surroundings_(std::move(surroundings)) {
    setObjectName(QStringLiteral("FirstPage"));
    setWindowTitle(QStringLiteral("Vatro - første start"));
    auto* content = new QWidget;
    grid_ = new QGridLayout(content);
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
    AddDirectory(proposed);
    AddClock(proposed.offset);
    grid_->setRowStretch(grid_->rowCount(), 1);

    auto* all = new QVBoxLayout(this);
    room_ = new ScrollRoom(*content);
    all->addWidget(room_, 1);
    AddButtons();

    for (QLineEdit* field : {call_, operator_, directory_}) {
        connect(field, &QLineEdit::textChanged, this, [this, field] {
            for (const FirstQuestion about : {FirstQuestion::Call, FirstQuestion::Operator, FirstQuestion::Directory})
                if (RowOf(about).field == field) ForgetComplaint(RowOf(about));
        });
    }
    for (QWidget* widget : findChildren<QWidget*>()) widget->installEventFilter(this);
    auto* clock = new QTimer(this);
    connect(clock, &QTimer::timeout, this, &FirstPage::ShowClock);
    clock->start(kSecond);
    mark_ = new FieldMark;
    mark_->setParent(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) {
        if (now != nullptr && isAncestorOf(now)) mark_->Surround(*now);
    });
    connect(this, &QDialog::finished, this, [] { WaitLoop::Look(); });
    LookAtDirectory();
    Fit();
    call_->setFocus();
}

FirstPage::~FirstPage() {
    // The field with the focus loses it when Qt deletes it, after this destructor.
    directory_->disconnect(this);
}

QLabel* FirstPage::AddMessage() {
    QLabel* message = Words({});
    message->hide();
    grid_->addWidget(message, grid_->rowCount(), 1);
    return message;
}

void FirstPage::AddRow(const QString& caption, QWidget& buddy, QLayout& fields) {
    auto* label = new QLabel(caption);
    label->setBuddy(&buddy);
    const int row = grid_->rowCount();
    grid_->addWidget(label, row, 0);
    grid_->addLayout(&fields, row, 1);
}

QLineEdit* FirstPage::AddField(const QString& caption, const QString& name, int characters, const QString& hint) {
    auto* field = new QLineEdit;
    field->setAccessibleName(name);
    field->setAccessibleDescription(hint);
    // Some more than the text, for the frame and the caret.
    field->setFixedWidth(fontMetrics().horizontalAdvance(u'W') * (characters + 2));
    auto* fields = new QHBoxLayout;
    fields->addWidget(field);
    fields->addWidget(Words(hint), 1);
    AddRow(caption, *field, *fields);
    return field;
}

void FirstPage::AddClass(char chosen) {
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

void FirstPage::AddDirectory(const FirstAnswers& proposed) {
    directory_ = new QLineEdit(QString::fromStdString(proposed.directory));
    directory_->setAccessibleName(QStringLiteral("Logbibliotek"));
    choose_ = new QPushButton(QStringLiteral("&Vælg..."));
    choose_->setAutoDefault(false);
    auto* fields = new QHBoxLayout;
    fields->addWidget(directory_, 1);
    fields->addWidget(choose_);
    AddRow(QStringLiteral("&Logbibliotek:"), *directory_, *fields);
    directoryMessage_ = AddMessage();
    useLogs_ = new QCheckBox(QStringLiteral("B&rug de logge, og log videre i dem"));
    useLogs_->hide();
    grid_->addWidget(useLogs_, grid_->rowCount(), 1);
    useLogsMessage_ = AddMessage();
    connect(directory_, &QLineEdit::editingFinished, this, &FirstPage::LookAtDirectory);
    connect(choose_, &QPushButton::clicked, this, [this] { Deliver([this] { ChooseDirectory(); }); });
    connect(useLogs_, &QCheckBox::toggled, this, [this] { ForgetComplaint(RowOf(FirstQuestion::UseLogs)); });
}

void FirstPage::AddClock(int offset) {
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
    connect(offset_, &QSpinBox::valueChanged, this, &FirstPage::ShowClock);
    ShowClock();
}

void FirstPage::AddButtons() {
    goOn_ = new QPushButton(QStringLiteral("&Gå i gang"));
    auto* leave = new QPushButton(QStringLiteral("&Spring over (Esc)"));
    leave->setToolTip(QStringLiteral("Intet bliver gemt. Programmet spørger selv om logbiblioteket."));
    for (QPushButton* button : {goOn_, leave}) button->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Words(QStringLiteral("Alt kan ændres senere i menuerne.")), 1);
    buttons->addWidget(goOn_);
    buttons->addWidget(leave);
    static_cast<QVBoxLayout*>(layout())->addLayout(buttons);
    connect(goOn_, &QPushButton::clicked, this, &FirstPage::accept);
    connect(leave, &QPushButton::clicked, this, &FirstPage::reject);
}

FirstAnswers FirstPage::Answers() const {
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

FirstPage::Row FirstPage::RowOf(FirstQuestion about) const {
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

void FirstPage::Say(const Row& row, const std::string& text, bool wrong) {
    row.message->setText(ToQt(text));
    row.message->setVisible(!text.empty());
    // Nothing else on the page is bold below a field, so the colour is not the only sign.
    QFont font = this->font();
    font.setBold(wrong);
    row.message->setFont(font);
    QPalette colours = palette();
    if (wrong) colours.setColor(QPalette::WindowText, ColoursOf(Signal::Wrong, colours).ground);
    row.message->setPalette(colours);
    row.field->setAccessibleDescription(row.message->text());
    Fit();
}

bool FirstPage::Tell(const std::vector<Complaint>& complaints) {
    for (const Complaint& complaint : complaints) {
        if (complaint.about == FirstQuestion::UseLogs) useLogs_->show();
        Say(RowOf(complaint.about), complaint.text, true);
    }
    if (complaints.empty()) return true;
    RowOf(complaints.front().about).field->setFocus(Qt::TabFocusReason);
    return false;
}

void FirstPage::ForgetComplaint(const Row& row) {
    if (!row.message->isHidden()) Say(row, {}, false);
}

void FirstPage::LookAtDirectory() {
    if (directory_->text() == seen_) return;
    seen_ = directory_->text();
    const DirectoryFinding found = ExamineDirectory(seen_.toStdString(), surroundings_.home);
    const bool holdsLogs = found.kind == DirectoryFinding::Kind::HoldsLogs;
    // A consent was for the directory that stood here before.
    useLogs_->setChecked(false);
    ForgetComplaint(RowOf(FirstQuestion::UseLogs));
    useLogs_->setVisible(holdsLogs);
    Say(RowOf(FirstQuestion::Directory), found.text, found.kind == DirectoryFinding::Kind::Unusable);
}

void FirstPage::ShowClock() {
    const DateTime now = surroundings_.now();
    question_->setText(ToQt(ClockQuestion(now, offset_->value())));
    offset_->setAccessibleDescription(question_->text());
    advice_->setText(ToQt(ClockAdvice(now)));
}

void FirstPage::ChooseDirectory() {
    const std::string chosen = surroundings_.chooseDirectory();
    if (chosen.empty()) return;
    directory_->setText(QString::fromStdString(chosen));
    LookAtDirectory();
    directory_->setFocus(Qt::TabFocusReason);
}

void FirstPage::accept() {
    LookAtDirectory();
    const FirstAnswers answers = Answers();
    if (!Tell(CheckAnswers(answers, surroundings_.home))) return;
    if (!Tell(PrepareDisk(answers, surroundings_.home, surroundings_.tables))) return;
    QDialog::accept();
}

bool FirstPage::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) return false;
    const Moment at(key.timestamp());
    if (event->type() == QEvent::KeyRelease) {
        held_.Released(key.nativeScanCode(), at);
        return false;
    }
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || !widget->hasFocus()) return false;
    // Held down, it would run through all the fields.
    if (!key.isAutoRepeat() && !(key.nativeScanCode() != 0 && held_.Repeats(key.nativeScanCode(), at))) Enter(*widget);
    return true;
}

void FirstPage::Enter(QWidget& from) {
    if (auto* button = qobject_cast<QPushButton*>(&from)) return button->click();
    // What is needed is asked for at once, where the eyes are.
    if (&from == directory_) LookAtDirectory();
    for (const Complaint& complaint : CheckAnswers(Answers(), surroundings_.home))
        if (RowOf(complaint.about).field == &from) return static_cast<void>(Tell({complaint}));
    if (&from == offset_) return accept();
    QWidget* const chosen = classB_->isChecked() ? classB_ : classA_;
    const std::vector<QWidget*> order{call_, chosen, telephone_, operator_, directory_, useLogs_, offset_};
    auto next = std::find(order.begin(), order.end(), &from);
    if (next != order.end()) ++next;
    if (next != order.end() && *next == useLogs_ && useLogs_->isHidden()) ++next;
    if (next != order.end()) (*next)->setFocus(Qt::TabFocusReason);
}

void FirstPage::Fit() {
    if (room_ == nullptr) return;
    const QWidget& content = *room_->widget();
    const QSize free = (isVisible() ? screen() : QGuiApplication::primaryScreen())->availableSize();
    const int width = std::min(fontMetrics().averageCharWidth() * kWidth, free.width() * 9 / 10);
    const QMargins margins = layout()->contentsMargins();
    const int others = margins.top() + margins.bottom() + layout()->spacing() + goOn_->sizeHint().height() +
                       style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const int wanted = std::min(content.heightForWidth(width), free.height() - others);
    // It does not shrink while somebody types.
    room_->setMinimumSize(width, std::max(wanted, room_->minimumHeight()));
    adjustSize();
}

void AskAtFirstStart() {
    if (!IsFirstStart(ReadSetting(setting::kLogDirectory), ReadSetting(setting::kMyCall)) || platform().instance.AnotherCopyRuns()) return;
    const std::filesystem::path home = QDir::homePath().toStdU16String();
    const std::string tables = ReadSetting(setting::kTablesDirectory);
    FirstPage::Surroundings surroundings;
    surroundings.home = home;
    surroundings.tables = NativePath(tables.empty() ? platform().files.CurrentDirectory() : tables);
    surroundings.now = [] { return platform().clock.Now(); };
    surroundings.chooseDirectory = ChosenDirectory;
    FirstPage page(Proposed(home), std::move(surroundings));
    if (!RunDialog(page) || page.result() != QDialog::Accepted) return;
    const FirstAnswers answers = page.Answers();
    StoreAnswers(answers, LogDirectorySetting(answers, home));
}

}  // namespace vatro
