// SPDX-License-Identifier: MIT
#include "qt/printer.h"

#include <QFontMetricsF>
#include <QPrinterInfo>

#include "platform/platform.h"
#include "qt/text.h"

namespace vatro {

namespace {

constexpr double kPointsPerInch = 72;

/// Empty on Cancel.
QString AskForPdf() {
    FileDialog dialog;
    dialog.title = "Gem udskriften som PDF";
    dialog.fileName = "vatro.pdf";
    dialog.filter = "PDF (*.pdf)|*.pdf";
    dialog.defaultExtension = "pdf";
    dialog.overwritePrompt = true;
    try {
        return ToQt(platform().dialogs.SaveFile(dialog));
    } catch (const RunTimeError&) {
        return {};
    }
}

void TellFailure(const QString& file) {
    MessageBox box;
    box.text = file.isEmpty() ? std::string("Printeren kan ikke bruges.") : "Udskriften kan ikke skrives til " + FromQt(file);
    box.icon = Icon::Exclamation;
    platform().dialogs.Show(box);
}

}  // namespace

QtPrinter::QtPrinter() : printer_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
    printer_->setDocName(QStringLiteral("Vatro"));
    printer_->setPageSize(QPageSize(QPageSize::A4));
}

QtPrinter::~QtPrinter() = default;

double QtPrinter::Width() const {
    return printer_->pageRect(QPrinter::Point).width();
}

double QtPrinter::Height() const {
    return printer_->pageRect(QPrinter::Point).height();
}

QFont QtPrinter::FontOnPaper(const Font& font) const {
    QFont paper(ToQt(font.name));
    if (font.size > 0) paper.setPointSizeF(font.size);
    paper.setBold(font.bold);
    paper.setUnderline(font.underline);
    // Rows of figures keep their columns where the named font is missing.
    paper.setStyleHint(font.name.starts_with("Courier") ? QFont::Monospace : QFont::SansSerif);
    return {paper, printer_.get()};
}

double QtPrinter::TextWidth(std::string_view text, const Font& font) const {
    const QFontMetricsF metrics(FontOnPaper(font), printer_.get());
    return metrics.horizontalAdvance(ToQt(text)) * kPointsPerInch / printer_->logicalDpiX();
}

double QtPrinter::TextHeight(const Font& font) const {
    const QFontMetricsF metrics(FontOnPaper(font), printer_.get());
    return metrics.lineSpacing() * kPointsPerInch / printer_->logicalDpiY();
}

void QtPrinter::BeginJob() {
    pending_ = 0;
    dropped_ = false;
}

/// Whether there is something to paint on: the job begins with its first text.
bool QtPrinter::Start() {
    if (painter_.isActive()) return true;
    if (dropped_) return false;
    if (printer_->outputFileName().isEmpty() && QPrinterInfo::availablePrinterNames().isEmpty()) {
        const QString file = AskForPdf();
        dropped_ = file.isEmpty();
        if (dropped_) return false;
        printer_->setOutputFormat(QPrinter::PdfFormat);
        printer_->setOutputFileName(file);
        asked_ = true;
    }
    dropped_ = !painter_.begin(printer_.get());
    if (dropped_) TellFailure(printer_->outputFileName());
    for (; !dropped_ && pending_ > 0; --pending_) printer_->newPage();
    return !dropped_;
}

void QtPrinter::Place(double x, double y, const Font& font, std::string_view text) {
    if (!Start()) return;
    const QFont paper = FontOnPaper(font);
    const QFontMetricsF metrics(paper, printer_.get());
    painter_.setFont(paper);
    painter_.drawText(
        QPointF(x * printer_->logicalDpiX() / kPointsPerInch, y * printer_->logicalDpiY() / kPointsPerInch + metrics.ascent()), ToQt(text));
}

void QtPrinter::NextPage() {
    if (painter_.isActive())
        printer_->newPage();
    else
        ++pending_;
}

void QtPrinter::EndJob() {
    if (painter_.isActive()) painter_.end();
    if (!asked_) return;
    // The next job asks for a file of its own.
    printer_->setOutputFileName({});
    asked_ = false;
}

}  // namespace vatro
