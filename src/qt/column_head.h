// SPDX-License-Identifier: MIT
//
// A caption that heads several columns. Its pieces are placed over the columns of a list or over fields, because the blanks between the
// pieces were meant for another font.
#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

namespace vatro {

class ColumnHead : public QWidget {
    Q_OBJECT
    /// The columns of the list, from 1, over which the pieces are placed; `list` is the object name of that list.
    Q_PROPERTY(QString columns MEMBER columns_)
    Q_PROPERTY(QString list MEMBER list_)
    /// Without a list: the object names of the fields over which the pieces are placed.
    Q_PROPERTY(QString fields MEMBER fields_)
    /// Whether every blank separates pieces; otherwise only two or more blanks do.
    Q_PROPERTY(bool words MEMBER words_)
    /// Whether the pieces are spread evenly over the whole width, as above a scale.
    Q_PROPERTY(bool spread MEMBER spread_)

public:
    explicit ColumnHead(QWidget* parent = nullptr);

    /// Sets the caption. An access key in it is drawn underlined.
    void SetCaption(const QString& caption);
    const QString& Caption() const { return caption_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    /// A piece of the caption, and where it begins in this widget's coordinates.
    struct Piece {
        QString text;
        int x = 0;
    };
    QList<Piece> Pieces() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    /// The caption as it is painted.
    struct Layout {
        QFont font;
        QList<Piece> pieces;
    };
    Layout LaidOut() const;
    /// The font of the texts over the columns of a list: small enough that no word pushes the next one off its column.
    QFont HeadFont(const QStringList& texts, const QList<int>& places) const;
    QStringList Texts() const;
    QList<int> Places() const;
    QList<int> SpreadPlaces(const QStringList& texts, const QFontMetrics& metrics) const;
    QWidget* Sibling(const QString& name) const;

    QString caption_;
    QString columns_;
    QString list_;
    QString fields_;
    bool words_ = false;
    bool spread_ = false;
    bool watching_ = false;
};

}  // namespace vatro
