// SPDX-License-Identifier: MIT
#include "paper_ends.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "bind_common.h"
#include "codepage.h"
#include "entry/frmMain.h"
#include "frame/state.h"
#include "input.h"
#include "names.h"
#include "open_file.h"
#include "outcome_sign.h"
#include "platform.h"
#include "printer.h"
#include "printing/frmInfo.h"
#include "qt_front.h"
#include "qt_text.h"
#include "window.h"

namespace vatro {

using namespace literals;

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds kRetry = 200ms;

/// The file in the spelling that it has on the disk.
QString OnDisk(const std::string& path) {
    return QFileInfo(QString::fromStdU16String(FindPath(NativePath(path)).path.u16string())).absoluteFilePath();
}

}  // namespace

PaperEnds::PaperEnds(QtFront& front, PaperWatch& watch, QtPrinter& printer)
    : open(&OpenWithDesktop), front_(front), watch_(watch), printer_(printer), afterHandlers_([this] { Look(); }) {
    printer_.directory = [] { return ToQt(desk().gsLogLib); };
    printer_.ended = [this](const PrintJob& job) { watch_.Printed(job); };
}

PaperEnds::~PaperEnds() {
    printer_.directory = [] { return QString(); };
    printer_.ended = [](const PrintJob&) {};
}

void PaperEnds::Look() {
    const auto* progress = static_cast<const FrmInfo*>(frmInfo.Peek());
    const int steps = progress != nullptr ? progress->steps.ListCount() : 0;
    const std::optional<PaperEnd> end = watch_.TakeEnd(steps > steps_);
    steps_ = steps;
    if (end) Show(*end);
}

bool PaperEnds::Furnish() {
    const FormWindow* window = frmInfo.Loaded() ? front_.WindowOf(*frmInfo.Peek()) : nullptr;
    if (window == nullptr) return false;
    // A window that was closed stays for a moment.
    if (text_ != nullptr && text_->window() == window->Top()) return true;
    auto* rows = qobject_cast<QVBoxLayout*>(window->Top()->layout());
    auto* buttons = rows != nullptr ? rows->findChild<QHBoxLayout*>(QStringLiteral("buttons")) : nullptr;
    if (buttons == nullptr) return false;
    text_ = new QLabel(window->Top());
    text_->setObjectName(QStringLiteral("paperEnd"));
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    QFont bold = text_->font();
    bold.setBold(true);
    text_->setFont(bold);
    sign_ = new OutcomeSign(window->Top());
    sign_->setObjectName(QStringLiteral("paperSign"));
    auto* row = new QHBoxLayout;
    row->addWidget(sign_, 0, Qt::AlignTop);
    row->addWidget(text_, 1);
    rows->insertLayout(rows->indexOf(buttons), row);
    // The keyboard stays where it is; access keys press the buttons.
    const auto add = [&](int at, const QString& caption, const char* name) {
        auto* button = new QPushButton(caption, window->Top());
        button->setObjectName(QLatin1String(name));
        button->setShortcut(QKeySequence());
        button->setAutoDefault(false);
        button->setFocusPolicy(Qt::NoFocus);
        WidenButton(*button);
        buttons->insertWidget(at, button);
        return button;
    };
    file_ = add(0, QStringLiteral("&Åbn"), "openPaper");
    directory_ = add(1, QStringLiteral("Åbn &mappe"), "openDirectory");
    connect(file_, &QPushButton::clicked, this, [this] { Open(files_.constFirst()); });
    connect(directory_, &QPushButton::clicked, this, [this] { Open(QFileInfo(files_.constFirst()).absolutePath()); });
    window->Top()->installEventFilter(this);
    UncoverFields(*window->Top());
    return true;
}

void PaperEnds::UncoverFields(QWidget& window) const {
    const QWidget* fields = frmMain.Loaded() ? front_.WidgetOf(frmMain->contactFrame) : nullptr;
    if (fields == nullptr || frmInfo->Placed()) return;
    // The real frame is not known before the window is on the screen.
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    const int lowest = fields->mapToGlobal(QPoint()).y() - window.height() - title;
    const int screen = window.screen()->availableGeometry().top();
    if (window.y() > lowest) window.move(window.x(), std::max(screen, lowest));
}

void PaperEnds::Show(const PaperEnd& end) {
    if (!Furnish()) return;
    files_.clear();
    for (const std::string& file : end.files) files_.append(OnDisk(file));
    sign_->SetGood(end.made);
    text_->setText(ToQt(end.text));
    text_->setToolTip(files_.join(u'\n'));
    file_->setVisible(files_.size() == 1);
    directory_->setVisible(!files_.isEmpty());
    // A side window does not grow by itself; the user may make it small, but not so small at first that its buttons overlap.
    QWidget& window = *text_->window();
    const QRect screen = window.screen()->availableGeometry();
    window.layout()->activate();
    window.resize(window.size().expandedTo(window.layout()->totalMinimumSize()).boundedTo(screen.size()));
    UncoverFields(window);
    // The text takes room from the list when the window is laid out anew.
    if (auto* list = qobject_cast<QAbstractItemView*>(front_.WidgetOf(static_cast<const FrmInfo*>(frmInfo.Peek())->steps)))
        QTimer::singleShot(0, list, &QAbstractItemView::scrollToBottom);
    QAccessibleEvent told(text_, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

void PaperEnds::Open(const QString& path) {
    const QPointer<PaperEnds> self(this);
    open(QUrl::fromLocalFile(path), [self, path] {
        if (self) self->TellNotOpened(path);
    });
}

void PaperEnds::TellNotOpened(const QString& path) {
    // The answer can come while a handler is repainting its window or a box waits for an answer.
    if (TicksHeld() || QApplication::activeModalWidget() != nullptr) {
        QTimer::singleShot(kRetry, this, [this, path] { TellNotOpened(path); });
        return;
    }
    const QFileInfo file(path);
    const bool isDirectory = file.isDir();
    const QString directory = QDir::toNativeSeparators(isDirectory ? file.absoluteFilePath() : file.absolutePath());
    const QString name = isDirectory ? QStringLiteral("Mappen") : file.fileName();
    const QString why = file.exists() ? QStringLiteral("%1 kan ikke åbnes: systemet har intet program, der kan vise den.")
                                      : QStringLiteral("%1 findes ikke mere.");
    const QString where = isDirectory ? QStringLiteral("Den ligger her:") : QStringLiteral("Filen ligger i mappen");
    const QString place = file.exists() ? where + u'\n' + directory : directory;
    MessageBox box;
    box.text = FromQt(why.arg(name) + QStringLiteral("\n\n") + place);
    box.icon = Icon::Exclamation;
    Deliver([&box] { MsgBox(box); });
}

bool PaperEnds::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const char letter = AccessLetterOf(static_cast<QKeyEvent&>(*event));
    QPushButton* pressed = letter == Upper("å"_t[0]) ? file_ : letter == 'M' ? directory_ : nullptr;
    if (pressed == nullptr || pressed->isHidden()) return false;
    pressed->click();
    return true;
}

}  // namespace vatro
