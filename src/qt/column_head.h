// SPDX-License-Identifier: MIT
//
// A caption that is the head of several columns: its pieces are placed over the columns of a list or over fields,
// because the blanks between them were counted in another font.
#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

namespace vatro {

class ColumnHead : public QWidget {
    Q_OBJECT
    /// Columns of the list, from 1, at which the pieces stand, and the list's object name.
    Q_PROPERTY(QString columns MEMBER columns_)
    Q_PROPERTY(QString list MEMBER list_)
    /// Object names of the fields over which the pieces stand, where there is no list.
    Q_PROPERTY(QString fields MEMBER fields_)
    /// Pieces end at every blank, not at two or more.
    Q_PROPERTY(bool words MEMBER words_)
    /// Pieces stand at equal distances from one end to the other, as over a scale.
    Q_PROPERTY(bool spread MEMBER spread_)

public:
    explicit ColumnHead(QWidget* parent = nullptr);

    /// With its access key, which is drawn underlined.
    void SetCaption(const QString& caption);
    const QString& Caption() const { return caption_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    /// The pieces of the caption and where each begins, in this widget's coordinates.
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
    QList<int> Places() const;
    QList<int> SpreadPlaces(const QStringList& texts) const;
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
