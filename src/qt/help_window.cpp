// SPDX-License-Identifier: MIT
#include "help_window.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QSplitter>
#include <QStatusBar>
#include <QStyle>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>
#include <memory>
#include <utility>

#include "handbook.h"
#include "print_module.h"
#include "readable.h"
#include "signal_colours.h"
#include "title_room.h"

namespace vatro {

namespace {

constexpr QSize kSize(1000, 700);
constexpr int kContentsWidth = 280;
/// Role under which an entry of the contents stores its link.
constexpr int kLinkRole = Qt::UserRole;

QUrl UrlOf(const QString& link) {
    QUrl url(QStringLiteral("qrc") + HandbookFile(link.section(u'#', 0, 0)));
    if (link.contains(u'#')) url.setFragment(link.section(u'#', 1));
    return url;
}

}  // namespace

HelpWindow::HelpWindow(QWidget* owner) : QMainWindow(owner, Qt::Window), contents_(new QTreeWidget), browser_(new QTextBrowser) {
    setWindowTitle(QStringLiteral("Vatro - hjælp"));
    browser_->setAccessibleName(QStringLiteral("Håndbogens side"));
    browser_->setOpenExternalLinks(true);
    auto* both = new QSplitter;
    both->addWidget(contents_);
    both->addWidget(browser_);
    both->setStretchFactor(1, 1);
    both->setSizes({kContentsWidth, kSize.width() - kContentsWidth});
    setCentralWidget(both);
    told_ = new QLabel;
    statusBar()->addWidget(told_);
    statusBar()->setAccessibleName(QStringLiteral("Statuslinje"));
    AddContents();
    AddTools();
    resize(kSize.boundedTo(screen()->availableSize() - kLargestFrame));
    ChooseInks();
    connect(browser_, &QTextBrowser::sourceChanged, this, [this] { told_->clear(); });
}

void HelpWindow::ChooseInks() {
    // Qt colours links when it reads a page, in the colour of the scheme, and a dark scheme may have only the blue for a light ground.
    // The lines of tables are grey in every scheme.
    // The widgets get a new scheme only after this window.
    const QPalette palette = QApplication::palette();
    const QColor ground = palette.color(QPalette::Base);
    const QColor link = ReadableOn(ground, palette.color(QPalette::Link));
    QPalette hint;
    hint.setColor(QPalette::PlaceholderText, ReadableOn(ground, palette.color(QPalette::Disabled, QPalette::Text)));
    wanted_->setPalette(hint);
    for (const auto& [action, icon] : std::as_const(tools_)) action->setIcon(style()->standardIcon(icon));
    // The field makes its icon when it gets the button.
    wanted_->setClearButtonEnabled(false);
    wanted_->setClearButtonEnabled(true);
    QTextDocument& page = *browser_->document();
    const QString before = page.defaultStyleSheet();
    page.setDefaultStyleSheet(
        QStringLiteral("a { color: %1; } table { border-style: solid; border-color: %2; }").arg(link.name(), FadedInk(palette).name()));
    if (page.defaultStyleSheet() == before || browser_->source().isEmpty()) return;
    const int at = browser_->verticalScrollBar()->value();
    browser_->reload();
    browser_->verticalScrollBar()->setValue(at);
}

void HelpWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && wanted_ != nullptr) ChooseInks();
}

void HelpWindow::AddContents() {
    contents_->setHeaderHidden(true);
    contents_->setAccessibleName(QStringLiteral("Indhold"));
    contents_->setRootIsDecorated(false);
    contents_->setIndentation(contents_->fontMetrics().averageCharWidth() * 2);
    QTreeWidgetItem* heading = nullptr;
    for (const HandbookEntry& entry : HandbookContents()) {
        QTreeWidgetItem* item = heading == nullptr || entry.link.isEmpty() ? new QTreeWidgetItem(contents_) : new QTreeWidgetItem(heading);
        item->setText(0, entry.title);
        item->setToolTip(0, entry.title);
        item->setData(0, kLinkRole, entry.link);
        if (!entry.link.isEmpty()) continue;
        item->setFlags(Qt::ItemIsEnabled);
        QFont bold = contents_->font();
        bold.setBold(true);
        item->setFont(0, bold);
        heading = item;
    }
    contents_->expandAll();
    const auto go = [this](QTreeWidgetItem* item) {
        const QString link = item != nullptr ? item->data(0, kLinkRole).toString() : QString();
        if (!link.isEmpty()) browser_->setSource(UrlOf(link));
    };
    connect(contents_, &QTreeWidget::currentItemChanged, this, go);
    // Clicking the current entry goes to its page again, because the user may have left that page by a link.
    connect(contents_, &QTreeWidget::itemClicked, this, go);
}

void HelpWindow::AddTools() {
    QToolBar* bar = addToolBar(QStringLiteral("Værktøj"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const auto add = [&](QStyle::StandardPixmap icon, const QString& text, const QKeySequence& key) {
        QAction* action = bar->addAction(text);
        tools_.append({action, icon});
        action->setShortcut(key);
        action->setToolTip(text + QStringLiteral(" (") + key.toString(QKeySequence::NativeText) + u')');
        return action;
    };
    QAction* home = add(QStyle::SP_DirHomeIcon, QStringLiteral("Indhold"), Qt::ALT | Qt::Key_Home);
    QAction* back = add(QStyle::SP_ArrowBack, QStringLiteral("Tilbage"), Qt::ALT | Qt::Key_Left);
    QAction* forward = add(QStyle::SP_ArrowForward, QStringLiteral("Frem"), Qt::ALT | Qt::Key_Right);
    QAction* print = add(QStyle::SP_FileIcon, QStringLiteral("Udskriv..."), Qt::CTRL | Qt::Key_P);
    connect(home, &QAction::triggered, this, [this] { ShowPage(HandbookPages().constFirst()); });
    connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
    connect(forward, &QAction::triggered, browser_, &QTextBrowser::forward);
    connect(print, &QAction::triggered, this, &HelpWindow::PrintPage);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);

    bar->addSeparator();
    wanted_ = new QLineEdit;
    wanted_->setObjectName(QStringLiteral("wanted"));
    wanted_->setPlaceholderText(QStringLiteral("Søg i håndbogen (Ctrl+F)"));
    wanted_->setAccessibleName(QStringLiteral("Søg i håndbogen"));
    bar->addWidget(wanted_);
    QAction* next = bar->addAction(QStringLiteral("Find næste"));
    next->setShortcut(Qt::Key_F3);
    next->setToolTip(QStringLiteral("Find næste (F3)"));
    connect(next, &QAction::triggered, this, &HelpWindow::FindAgain);
    connect(wanted_, &QLineEdit::returnPressed, this, &HelpWindow::FindAgain);
    const auto addKey = [this](const QKeySequence& key, const std::function<void()>& work) {
        auto* action = new QAction(this);
        action->setShortcut(key);
        connect(action, &QAction::triggered, this, work);
        addAction(action);
    };
    addKey(Qt::CTRL | Qt::Key_F, [this] {
        wanted_->setFocus();
        wanted_->selectAll();
    });
    addKey(Qt::Key_Escape, [this] { close(); });
}

void HelpWindow::ShowPage(const QString& link) {
    browser_->setSource(UrlOf(link));
    if (isMinimized())
        showNormal();
    else
        show();
    raise();
    activateWindow();
    browser_->setFocus();
}

QString HelpWindow::Page() const {
    return browser_->source().fileName();
}

QString HelpWindow::SelectedText() const {
    return browser_->textCursor().selectedText();
}

bool HelpWindow::FindOn(const QString& page, const QString& text) {
    QTextDocument document;
    document.setHtml(browser_->loadResource(QTextDocument::HtmlResource, UrlOf(page)).toString());
    if (document.find(text).isNull()) return false;
    browser_->setSource(UrlOf(page));
    browser_->moveCursor(QTextCursor::Start);
    return browser_->find(text);
}

bool HelpWindow::FindNext(const QString& text) {
    told_->clear();
    if (text.isEmpty()) return false;
    if (browser_->find(text)) return true;
    const QStringList pages = HandbookPages();
    const qsizetype here = qMax<qsizetype>(0, pages.indexOf(Page()));
    for (qsizetype step = 1; step <= pages.size(); ++step)
        if (FindOn(pages[(here + step) % pages.size()], text)) return true;
    told_->setText(QStringLiteral("\"%1\" står ikke i håndbogen.").arg(text));
    return false;
}

void HelpWindow::FindAgain() {
    if (wanted_->text().isEmpty())
        wanted_->setFocus();
    else
        FindNext(wanted_->text());
}

void HelpWindow::PrintPage() {
    PrintModule* const module = LoadPrintModule();
    if (module == nullptr) {
        told_->setText(QStringLiteral("Vatro kan ikke indlæse sin del til printere, vatro-print."));
        return;
    }
    const std::shared_ptr<SystemPrinter> printer = module->MakePrinter();
    QDialog* const dialog = printer->MakeDialog(this, browser_->textCursor().hasSelection()).release();
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(QStringLiteral("Udskriv"));
    connect(dialog, &QDialog::accepted, browser_, [this, printer] { browser_->print(&printer->Device()); });
    dialog->open();
}

}  // namespace vatro
