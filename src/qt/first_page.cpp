// SPDX-License-Identifier: MIT
#include "first_page.h"

#include <QApplication>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <utility>

#include "deliver.h"
#include "field_mark.h"
#include "fields.h"
#include "first_fields.h"

namespace vatro {

namespace {

/// Width of the page, in characters of its font.
constexpr int kPageWidth = 84;

}  // namespace

FirstPage::FirstPage(const FirstAnswers& proposed, Surroundings surroundings)
    : surroundings_(std::move(surroundings)), fields_(new FirstFields(proposed)), room_(new ScrollRoom(*fields_)) {
    setObjectName(QStringLiteral("FirstPage"));
    setWindowTitle(QStringLiteral("Vatro - første start"));
    auto* all = new QVBoxLayout(this);
    all->addWidget(room_, 1);
    all->addLayout(MakeButtons());

    connect(fields_, &FirstFields::Changed, this, [this](FirstQuestion about) { Unsay(about); });
    connect(fields_, &FirstFields::Finished, this, &FirstPage::LookAt);
    connect(fields_, &FirstFields::OffsetChanged, this, &FirstPage::ShowClock);
    connect(fields_, &FirstFields::ChooseClicked, this, [this] { Deliver([this] { ChooseDirectory(); }); });
    for (QWidget* widget : findChildren<QWidget*>()) widget->installEventFilter(this);
    auto* clock = new QTimer(this);
    connect(clock, &QTimer::timeout, this, &FirstPage::ShowClock);
    clock->start(std::chrono::seconds(1));
    mark_ = new FieldMark;
    mark_->setParent(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*old*/, QWidget* now) {
        if (now != nullptr && isAncestorOf(now)) mark_->Surround(*now);
    });
    connect(this, &QDialog::finished, this, [] { WaitLoop::Look(); });
    ShowClock();
    LookAtDirectory();
    Fit();
    fields_->Field(FirstQuestion::Call).setFocus();
}

FirstPage::~FirstPage() {
    // The field with the focus loses it when Qt hides the page, after this destructor.
    fields_->disconnect(this);
}

QLayout* FirstPage::MakeButtons() {
    goOn_ = new QPushButton(QStringLiteral("&Gå i gang"));
    auto* leave = new QPushButton(QStringLiteral("&Spring over (Esc)"));
    leave->setToolTip(QStringLiteral("Intet bliver gemt. Programmet spørger selv om logbiblioteket."));
    for (QPushButton* button : {goOn_, leave}) button->setAutoDefault(false);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(Words(QStringLiteral("Alt kan ændres senere i menuerne.")), 1);
    buttons->addWidget(goOn_);
    buttons->addWidget(leave);
    connect(goOn_, &QPushButton::clicked, this, &FirstPage::accept);
    connect(leave, &QPushButton::clicked, this, &FirstPage::reject);
    return buttons;
}

FirstAnswers FirstPage::Answers() const {
    return fields_->Answers();
}

void FirstPage::Say(FirstQuestion about, const std::string& text, bool wrong) {
    fields_->Say(about, text, wrong);
    Fit();
}

void FirstPage::Unsay(FirstQuestion about) {
    fields_->Unsay(about);
    Fit();
}

bool FirstPage::Tell(const std::vector<Complaint>& complaints) {
    for (const Complaint& complaint : complaints) {
        if (complaint.about == FirstQuestion::UseLogs) fields_->ShowUseLogs(true);
        Say(complaint.about, complaint.text, true);
    }
    if (complaints.empty()) return true;
    fields_->Field(complaints.front().about).setFocus(Qt::TabFocusReason);
    return false;
}

void FirstPage::LookAt(FirstQuestion about) {
    if (about == FirstQuestion::Directory) LookAtDirectory();
    if (about != FirstQuestion::Call) return;
    if (const std::string hint = CallHint(Answers().call); !hint.empty()) Say(about, hint, false);
}

void FirstPage::LookAtDirectory() {
    const std::string directory = Answers().directory;
    if (directory == seen_) return;
    seen_ = directory;
    const DirectoryFinding found = ExamineDirectory(directory, surroundings_.home);
    // A consent was for the directory that stood here before.
    fields_->ForbidLogs();
    Unsay(FirstQuestion::UseLogs);
    fields_->ShowUseLogs(found.kind == DirectoryFinding::Kind::HoldsLogs);
    Say(FirstQuestion::Directory, found.text, found.kind == DirectoryFinding::Kind::Unusable);
}

void FirstPage::ShowClock() {
    const DateTime now = surroundings_.now();
    fields_->ShowClock(ClockQuestion(now, Answers().offset), ClockAdvice(now));
}

void FirstPage::ChooseDirectory() {
    const std::string chosen = surroundings_.chooseDirectory();
    if (chosen.empty()) return;
    fields_->SetDirectory(chosen);
    LookAtDirectory();
    fields_->Field(FirstQuestion::Directory).setFocus(Qt::TabFocusReason);
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
    if (&from == &fields_->Field(FirstQuestion::Directory)) LookAtDirectory();
    for (const Complaint& complaint : CheckAnswers(Answers(), surroundings_.home))
        if (&fields_->Field(complaint.about) == &from) return static_cast<void>(Tell({complaint}));
    if (fields_->IsLast(from)) return accept();
    if (QWidget* next = fields_->After(from)) next->setFocus(Qt::TabFocusReason);
}

void FirstPage::Fit() {
    const QSize free = (isVisible() ? screen() : QGuiApplication::primaryScreen())->availableSize();
    const int width = std::min(fontMetrics().averageCharWidth() * kPageWidth, free.width() * 9 / 10);
    const QMargins margins = layout()->contentsMargins();
    const int others = margins.top() + margins.bottom() + layout()->spacing() + goOn_->sizeHint().height() +
                       style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const int wanted = std::min(fields_->heightForWidth(width), free.height() - others);
    // It does not shrink while somebody types.
    room_->setMinimumSize(width, std::max(wanted, room_->minimumHeight()));
    adjustSize();
}

}  // namespace vatro
