// SPDX-License-Identifier: MIT
#include "recovery_window.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFrame>
#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <memory>

#include "codepage.h"
#include "deliver.h"
#include "dialogs.h"
#include "errors.h"
#include "joined.h"
#include "names.h"
#include "program.h"
#include "qt_text.h"

namespace vatro {

using namespace literals;

namespace {

/// Width of the window, in characters of its font.
constexpr int kWindowWidth = 90;

QLabel* TextToCopy(const QString& text, bool bold = false) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (!bold) return label;
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

QString Holding(const LogSummary& found) {
    if (found.contacts == 0) return QStringLiteral("Ingen kontakter");
    const QString first = ToQt(found.first);
    if (found.contacts == 1) return QStringLiteral("1 kontakt, %1").arg(first);
    return QStringLiteral("%1 kontakter, den første %2, den sidste %3").arg(found.contacts).arg(first, ToQt(found.last));
}

}  // namespace

RecoveryWindow::RecoveryWindow(const std::filesystem::path& directory, const std::vector<Finding>& findings, QWidget* owner)
    : QDialog(owner) {
    setWindowTitle(QStringLiteral("Vatro - før loggen åbnes"));
    auto* all = new QVBoxLayout(this);
    auto* cards = new QWidget;
    auto* column = new QVBoxLayout(cards);
    column->setContentsMargins(0, 0, 0, 0);
    for (const Finding& finding : findings) AddCard(finding, *column);
    column->addStretch(1);

    all->addWidget(TextToCopy(QStringLiteral("Logbiblioteket: ") + ToQt(NativeText(directory)), true));
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(cards);
    // The text can be scrolled by keyboard, but the buttons get the focus first.
    scroll->setAccessibleName(QStringLiteral("Hvad der er fundet"));
    all->addWidget(scroll, 1);

    auto* buttons = new QDialogButtonBox;
    QPushButton* accept = nullptr;
    if (hasProposals_) {
        all->addWidget(TextToCopy(QStringLiteral("Intet slettes: hver fil, der bliver ændret, lægges først i historikken.")));
        accept = buttons->addButton(QStringLiteral("&Gør det (Enter)"), QDialogButtonBox::AcceptRole);
        QPushButton* leave = buttons->addButton(QStringLiteral("&Ændr intet (Esc)"), QDialogButtonBox::RejectRole);
        leave->setAutoDefault(false);
    } else {
        accept = buttons->addButton(QStringLiteral("&OK"), QDialogButtonBox::AcceptRole);
    }
    accept->setDefault(true);
    accept->setFocus();
    all->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(this, &QDialog::finished, this, [] { WaitLoop::Look(); });

    buttons_ = buttons;
    cards_ = scroll;
    accept_ = accept;
    const QSize room = (owner != nullptr ? owner->screen() : QGuiApplication::primaryScreen())->availableSize();
    const int width = std::min(fontMetrics().averageCharWidth() * kWindowWidth, room.width() * 9 / 10);
    cards->setFixedWidth(width);
    const int height = column->heightForWidth(width);
    scroll->setMinimumSize(width + style()->pixelMetric(QStyle::PM_ScrollBarExtent), std::min(height, room.height() * 6 / 10));
}

void RecoveryWindow::TakeNoEnter() {
    if (hasProposals_) {
        accept_->setText(QStringLiteral("&Gør det (Alt+G)"));
        // The box of buttons would make a button that accepts the default one again.
        buttons_->addButton(accept_, QDialogButtonBox::ActionRole);
        connect(accept_, &QPushButton::clicked, this, &QDialog::accept);
    }
    for (QPushButton* button : findChildren<QPushButton*>()) {
        button->setAutoDefault(false);
        button->setDefault(false);
    }
    cards_->setFocusPolicy(Qt::StrongFocus);
    cards_->setFocus();
}

void RecoveryWindow::AddCard(const Finding& finding, QVBoxLayout& cards) {
    auto* card = new QFrame;
    card->setFrameShape(QFrame::StyledPanel);
    auto* rows = new QVBoxLayout(card);
    rows->addWidget(TextToCopy(ToQt(finding.file), true));
    rows->addWidget(TextToCopy(ToQt(finding.what)));
    const bool proposes = finding.action != Finding::Action::None;
    if (proposes) rows->addWidget(TextToCopy(Holding(finding.found)));
    rows->addWidget(TextToCopy((proposes ? QStringLiteral("Forslag: ") : QStringLiteral("Gør: ")) + ToQt(finding.proposal)));
    QComboBox* choice = nullptr;
    if (!finding.candidates.empty()) {
        choice = new QComboBox;
        for (const std::string& log : finding.candidates)
            choice->addItem(log.empty() ? QStringLiteral("ingen af dem") : ToQt(log), ToQt(log));
        choice->setAccessibleName(QStringLiteral("Loggen, som kopien hører til"));
        auto* label = new QLabel(QStringLiteral("&Kopien hører til:"));
        label->setBuddy(choice);
        auto* row = new QHBoxLayout;
        row->addWidget(label);
        row->addWidget(choice);
        row->addStretch(1);
        rows->addLayout(row);
    }
    choices_.push_back(choice);
    hasProposals_ = hasProposals_ || proposes;
    cards.addWidget(card);
}

std::vector<std::string> RecoveryWindow::Choices() const {
    std::vector<std::string> chosen;
    for (const QComboBox* choice : choices_) chosen.push_back(choice != nullptr ? FromQt(choice->currentData().toString()) : std::string());
    return chosen;
}

std::vector<std::filesystem::path> Recover(const RecoveryPlaces& places, History& history, RecoveryScope scope) {
    std::vector<Finding> findings = LookForDamage(places, history);
    if (scope == RecoveryScope::SecondCopy) std::erase_if(findings, [](const Finding& finding) { return !finding.fromCopy; });
    if (findings.empty()) return {};
    RecoveryWindow window(places.logs, findings, DialogOwner());
    if (scope == RecoveryScope::SecondCopy) {
        window.setWindowTitle(QStringLiteral("Vatro - løbende kopi"));
        window.TakeNoEnter();
    }
    RunDialog(window);
    LeaveIfEnding();
    std::vector<std::filesystem::path> left;
    if (window.result() != QDialog::Accepted) {
        for (const Finding& finding : findings)
            if (finding.action == Finding::Action::CutEnd) left.push_back(finding.log);
        return left;
    }
    const std::vector<std::string> choices = window.Choices();
    std::string told;
    for (std::size_t i = 0; i < findings.size(); ++i) {
        std::string outcome;
        try {
            outcome = Repair(findings[i], history, choices[i]);
        } catch (const RunTimeError& failure) {
            outcome = Joined({"Det kunne ikke lade sig gøre: "_t, Meaning(failure.Which()), ". Filerne er, som de var."_t});
        }
        if (!outcome.empty()) told += Joined({told.empty() ? "" : "\n\n", findings[i].file, ": ", outcome});
    }
    if (told.empty()) return left;
    MessageBox box;
    box.text = told;
    box.icon = Icon::Information;
    const std::unique_ptr<QMessageBox> made(MakeBox(box, DialogOwner()));
    RunDialog(*made);
    LeaveIfEnding();
    return left;
}

}  // namespace vatro
