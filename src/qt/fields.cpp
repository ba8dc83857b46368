// SPDX-License-Identifier: MIT
#include "fields.h"

#include <QApplication>
#include <QGlyphRun>
#include <QKeyEvent>
#include <QPainter>
#include <QRawFont>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTextLayout>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "application.h"
#include "signal_colours.h"

namespace vatro {

namespace {

constexpr double kEntryPoints = 17;
/// Margin in pixels around a widget that is scrolled into view.
constexpr int kSightMargin = 6;
/// Device-independent pixels per point, at 96 dpi.
constexpr double kPixelsPerPoint = 96.0 / 72.0;
/// The part of a widget that a text fills which is drawn as large as possible; the rest is its margin.
constexpr double kPartFilled = 0.85;

/// The letters by which the height of a row is measured. Those of a number and of most calls are no higher, and do not reach below.
constexpr const char16_t* kOfRow = u"O0/";

/// The outline of each letter of a line of text whose baseline begins at the origin. Blanks have none.
QList<QPainterPath> LetterPaths(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    QList<QPainterPath> paths;
    for (const QGlyphRun& run : layout.glyphRuns()) {
        const QRawFont letters = run.rawFont();
        const QList<quint32> indexes = run.glyphIndexes();
        const QList<QPointF> places = run.positions();
        for (qsizetype i = 0; i < indexes.size(); ++i) {
            const QPainterPath path = letters.pathForGlyph(indexes[i]);
            if (!path.isEmpty()) paths.append(path.translated(places[i] - QPointF(0, line.ascent())));
        }
    }
    return paths;
}

}  // namespace

EntryField::EntryField(QWidget* parent) : QLineEdit(parent) {
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(kEntryPoints);
    font.setBold(true);
    font.setStyleStrategy(kPlainLetters);
    setFont(font);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    // With a ground of its own, a key repaints the field alone, and not what lies behind it too. The ground is seen in the corners.
    setBackgroundRole(QPalette::Window);
    setAutoFillBackground(true);
}

QSize EntryField::SizeFor(int chars) const {
    const int digit = fontMetrics().horizontalAdvance(u'0');
    // For letters, a width between that of a digit and of the widest letter, because calls contain both.
    const int wide = letters_ ? digit * 6 / 5 : digit;
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QSize content(wide * chars + fontMetrics().averageCharWidth(), fontMetrics().height() + 4);
    return style()->sizeFromContents(QStyle::CT_LineEdit, &option, content, this);
}

void EntryField::keyReleaseEvent(QKeyEvent* event) {
    // Bypass the line edit's own handler, which would begin a new blink of the cursor, as the press has already done, and so paint the
    // field a second time.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QWidget::keyReleaseEvent(event);
}

void TickBox::paintEvent(QPaintEvent* event) {
    QCheckBox::paintEvent(event);
    QStyleOptionButton option;
    initStyleOption(&option);
    constexpr double kTowardsGround = 0.35;
    constexpr double kPen = 1.5;
    QPainter painter(this);
    painter.setPen(QPen(Mixed(palette().color(foregroundRole()), palette().color(backgroundRole()), kTowardsGround), kPen));
    painter.drawRect(QRectF(style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this)).adjusted(0.5, 0.5, -0.5, -0.5));
}

SpinArrows::SpinArrows(QWidget* parent) : QWidget(parent), up_(MakeArrow(true)), down_(MakeArrow(false)) {
    auto* column = new QVBoxLayout(this);
    column->setSpacing(0);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(up_);
    column->addWidget(down_);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize SpinArrows::sizeHint() const {
    QStyleOptionFrame option;
    option.initFrom(this);
    option.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
    // The same calculation as in QLineEdit.
    const QSize text(0, qMax(fontMetrics().height(), 14) + 2);
    return {up_->sizeHint().width(), style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, this).height()};
}

QToolButton* SpinArrows::MakeArrow(bool up) {
    auto* arrow = new QToolButton(this);
    arrow->setArrowType(up ? Qt::UpArrow : Qt::DownArrow);
    arrow->setAutoRepeat(true);
    arrow->setFocusPolicy(Qt::NoFocus);
    arrow->setAccessibleName(up ? QStringLiteral("Op") : QStringLiteral("Ned"));
    arrow->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    connect(arrow, &QToolButton::clicked, this, [this, up] { Q_EMIT Stepped(up); });
    return arrow;
}

ScrollRoom::ScrollRoom(QWidget& content) {
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(&content);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* /*old*/, QWidget* now) {
        if (now != nullptr && isAncestorOf(now)) BringIntoSight(*now);
    });
}

void ScrollRoom::BringIntoSight(const QWidget& inside) {
    // Show the whole widget, not only its caret; if there is not enough room, show its top left corner.
    const QRect place(inside.mapTo(widget(), QPoint()), inside.size());
    // Nearest to the beginning, where the log has its times and calls.
    if (place.right() + kSightMargin < viewport()->width()) horizontalScrollBar()->setValue(0);
    for (const QPoint& corner : {place.bottomRight(), place.topLeft()}) ensureVisible(corner.x(), corner.y(), kSightMargin, kSightMargin);
}

QSize ScrollRoom::Needed() const {
    return widget()->minimumSizeHint();
}

void ScrollRoom::keyPressEvent(QKeyEvent* event) {
    event->ignore();
}

bool ScrollRoom::focusNextPrevChild(bool next) {
    // BringIntoSight shows all of the widget with the focus; the scroll area would show a part of it.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    return QWidget::focusNextPrevChild(next);
}

QFont MeasureFont(const QString& family, bool bold) {
    QFont font(family);
    font.setPixelSize(kMeasurePixels);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

FittedText::FittedText(QWidget* parent) : QLabel(parent), font_(MeasureFont(QStringLiteral("Arial"), true)) {
    setTextFormat(Qt::PlainText);
}

void FittedText::SetTextFont(const QString& family, double points, bool bold) {
    font_ = MeasureFont(family, bold);
    letters_.reset();
    rowInk_.reset();
    points_ = points;
    update();
}

void FittedText::SetRow(const QWidget* row) {
    row_ = row;
    update();
}

void FittedText::SetColours(const QColor& text, const QColor& ground) {
    text_ = text;
    ground_ = ground;
    update();
}

const FittedText::Letters& FittedText::Outline() const {
    if (!letters_ || letters_->text != text()) {
        Letters letters;
        letters.text = text();
        letters.paths = LetterPaths(letters.text, font_);
        for (const QPainterPath& path : letters.paths) letters.ink |= path.boundingRect();
        letters.advance = QFontMetricsF(font_).horizontalAdvance(letters.text);
        letters_ = letters;
    }
    return *letters_;
}

const QRectF& FittedText::RowInk() const {
    if (!rowInk_) {
        QPainterPath path;
        path.addText(0, 0, font_, QString::fromUtf16(kOfRow));
        rowInk_ = path.boundingRect();
    }
    return *rowInk_;
}

double FittedText::LargestScale() const {
    const Letters& letters = Outline();
    // Without letters there is nothing to limit.
    if (letters.paths.isEmpty()) return height();
    const double broad = width() / qMax(letters.advance, letters.ink.right());
    if (row_ == nullptr) return qMin(height() / letters.ink.height(), broad);
    // A letter that reaches below the line may use the margin.
    const QRectF& row = RowInk();
    const double reach = qMax(letters.ink.bottom() - row.center().y(), row.center().y() - letters.ink.top());
    return qMin(kPartFilled * qMin(height() / row.height(), broad), height() / (2 * reach));
}

QList<FittedText*> FittedText::InRow() const {
    QList<FittedText*> texts;
    for (FittedText* text : row_->findChildren<FittedText*>())
        if (text->isVisible() && text->row_ == row_) texts.append(text);
    return texts;
}

void FittedText::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    // At night nothing is brighter than the text of the scheme, whatever colours the text has been given.
    const bool night = ground_.isValid() && IsNight(palette());
    const QColor ground = night ? palette().color(QPalette::WindowText) : ground_;
    const QColor colour = night ? palette().color(QPalette::Window) : text_;
    if (ground.isValid()) painter.fillRect(rect(), ground);
    const double largest = LargestScale();
    double scale = qMin(points_ * kPixelsPerPoint / kMeasurePixels, largest);
    if (row_ != nullptr) {
        scale = largest;
        const QList<FittedText*> inRow = InRow();
        for (const FittedText* other : inRow) scale = qMin(scale, other->LargestScale());
        // This text may be the one that limits the others.
        if (std::exchange(drawnLargest_, largest) != largest)
            for (FittedText* other : inRow)
                if (other != this) other->update();
    }
    const Letters& letters = Outline();
    if (letters.paths.isEmpty()) return;
    const double middle = (row_ != nullptr ? RowInk() : letters.ink).center().y();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate((width() - letters.advance * scale) / 2, height() / 2.0 - middle * scale);
    painter.scale(scale, scale);
    const QBrush brush(colour.isValid() ? colour : palette().color(foregroundRole()));
    for (const QPainterPath& path : letters.paths) painter.fillPath(path, brush);
}

}  // namespace vatro
