// SPDX-License-Identifier: MIT
#include "printer.h"

#include <QDir>
#include <QFontMetricsF>
#include <utility>

#include "codepage.h"
#include "platform.h"
#include "qt_text.h"

namespace vatro {

using namespace literals;

namespace {

constexpr double kPointsPerInch = 72;

void Tell(std::string_view text) {
    MessageBox box;
    box.text = text;
    box.icon = Icon::Exclamation;
    platform().dialogs.Show(box);
}

}  // namespace

QtPrinter::QtPrinter(std::function<bool()> answers, std::function<PrintModule*()> load)
    : answers_(std::move(answers)), load_(std::move(load)) {}

QtPrinter::~QtPrinter() = default;

PrintModule* QtPrinter::Module() const {
    if (module_ == nullptr) module_ = load_();
    return module_;
}

SystemPrinter* QtPrinter::Printer() const {
    if (Module() == nullptr || !answers_()) return nullptr;
    if (!printer_) printer_ = module_->MakePrinter();
    return printer_.get();
}

void QtPrinter::PrintToFile(const QString& pdf) {
    fixedFile_ = pdf;
}

QtPrinter::Target QtPrinter::FindTarget() const {
    if (!fixedFile_.isEmpty()) return Target::File;
    // If a file was chosen in the printer dialogue, no server is needed.
    if (printer_ && !printer_->File().isEmpty()) return Target::Printer;
    if (Module() == nullptr) return Target::FileForWantOfAModule;
    if (Printer() == nullptr) return Target::FileForWantOfAnAnswer;
    return module_->PrinterThere() ? Target::Printer : Target::File;
}

QPagedPaintDevice& QtPrinter::Device() const {
    if (target_ == Target::Unknown) {
        target_ = FindTarget();
        if (target_ != Target::Printer) {
            // The default margins are the same as those of a printer that does not report its own.
            pdf_ = std::make_unique<QPdfWriter>(&file_);
            pdf_->setPageSize(QPageSize(QPageSize::A4));
        }
    }
    if (target_ == Target::Printer) return printer_->Device();
    return *pdf_;
}

double QtPrinter::Width() const {
    return Device().pageLayout().paintRectPoints().width();
}

double QtPrinter::Height() const {
    return Device().pageLayout().paintRectPoints().height();
}

QFont QtPrinter::FontOnPaper(const Font& font) const {
    QFont paper(ToQt(font.name));
    if (font.size > 0) paper.setPointSizeF(font.size);
    paper.setBold(font.bold);
    paper.setUnderline(font.underline);
    // If the named font is missing, keep columns of digits aligned with another fixed-pitch font.
    paper.setStyleHint(font.name.starts_with("Courier") ? QFont::Monospace : QFont::SansSerif);
    return {paper, &Device()};
}

double QtPrinter::TextWidth(std::string_view text, const Font& font) const {
    const QFontMetricsF metrics(FontOnPaper(font), &Device());
    return metrics.horizontalAdvance(ToQt(text)) * kPointsPerInch / Device().logicalDpiX();
}

double QtPrinter::TextHeight(const Font& font) const {
    const QFontMetricsF metrics(FontOnPaper(font), &Device());
    return metrics.lineSpacing() * kPointsPerInch / Device().logicalDpiY();
}

void QtPrinter::BeginJob() {
    pending_ = 0;
    dropped_ = false;
    job_ = {};
}

QString QtPrinter::Title() const {
    return name_.empty() ? QStringLiteral("Vatro") : ToQt(name_);
}

std::string QtPrinter::TitleOfFileDialog(Target target) {
    switch (target) {
        case Target::FileForWantOfAnAnswer:
            return "Printserveren svarer ikke: gem udskriften som PDF";
        case Target::FileForWantOfAModule:
            return "Vatros del til printere mangler: gem udskriften som PDF";
        default:
            return "Gem udskriften som PDF";
    }
}

/// Empty if the user cancels.
QString QtPrinter::AskForFile() const {
    if (!fixedFile_.isEmpty()) return fixedFile_;
    FileDialog dialog;
    dialog.title = TitleOfFileDialog(target_);
    const QString file = Title() + QStringLiteral(".pdf");
    const QString proposed = directory();
    dialog.fileName = FromQt(proposed.isEmpty() ? file : QDir::toNativeSeparators(QDir(proposed).absoluteFilePath(file)));
    dialog.filter = "PDF (*.pdf)|*.pdf";
    dialog.defaultExtension = "pdf";
    dialog.overwritePrompt = true;
    try {
        return ToQt(platform().dialogs.SaveFile(dialog));
    } catch (const RunTimeError&) {
        return {};
    }
}

void QtPrinter::Fail() {
    job_.state = PrintJob::State::Failed;
    if (target_ == Target::Printer)
        Tell("Printeren kan ikke bruges.");
    else
        Tell("Udskriften kan ikke skrives til " + FromQt(file_.fileName()));
}

/// Starts the job with its first text. Returns whether there is a device to paint on.
bool QtPrinter::Start() {
    if (painter_.isActive()) return true;
    if (dropped_) return false;
    QPagedPaintDevice& device = Device();
    if (target_ == Target::Printer) {
        printer_->NameJob(Title());
        job_.file = FromQt(printer_->File());
        job_.printer = FromQt(printer_->Name());
    } else {
        pdf_->setTitle(Title());
        const QString chosen = AskForFile();
        dropped_ = chosen.isEmpty();
        if (dropped_) {
            job_.state = PrintJob::State::Dropped;
            return false;
        }
        job_.file = FromQt(chosen);
        file_.setFileName(chosen);
        dropped_ = !file_.open(QIODevice::WriteOnly);
    }
    dropped_ = dropped_ || !painter_.begin(&device);
    if (dropped_) Fail();
    job_.pages = pending_ + 1;
    for (; !dropped_ && pending_ > 0; --pending_) device.newPage();
    return !dropped_;
}

void QtPrinter::Place(double x, double y, const Font& font, std::string_view text) {
    if (!Start()) return;
    const QFont paper = FontOnPaper(font);
    const QFontMetricsF metrics(paper, &Device());
    painter_.setFont(paper);
    painter_.drawText(QPointF(x * Device().logicalDpiX() / kPointsPerInch, y * Device().logicalDpiY() / kPointsPerInch + metrics.ascent()),
                      ToQt(text));
}

void QtPrinter::NextPage() {
    if (painter_.isActive()) {
        Device().newPage();
        ++job_.pages;
    } else {
        ++pending_;
    }
}

void QtPrinter::EndJob() {
    if (painter_.isActive()) painter_.end();
    if (file_.isOpen()) {
        file_.close();
        if (file_.error() != QFile::NoError) Fail();
    }
    // Choose the target again for the next job.
    target_ = Target::Unknown;
    name_.clear();
    ended(job_);
}

}  // namespace vatro
