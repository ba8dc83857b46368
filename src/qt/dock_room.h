// SPDX-License-Identifier: MIT
//
// A place in the layout of the main window where windows of other forms can be docked. While nothing visible is docked there, the layout
// looks as if the room did not exist.
#pragma once

#include <QFrame>
#include <QList>
#include <QPointer>
#include <QStringList>

namespace vatro {

class DockRoom : public QFrame {
    Q_OBJECT
    /// The names of the forms whose windows go here, in this order from left to right.
    Q_PROPERTY(QString forms MEMBER forms_)
    /// For a room beside a list: the object name of that list, and the number of characters that the rows of the list and of the docked
    /// window are wide. The list gets its width first, and the rows of the docked window are made to fit what is left; the room never
    /// gets less than its `least` characters.
    Q_PROPERTY(QString beside MEMBER beside_)
    Q_PROPERTY(int listColumns MEMBER listColumns_)
    Q_PROPERTY(int columns MEMBER columns_)
    Q_PROPERTY(int least MEMBER least_)

public:
    explicit DockRoom(QWidget* parent = nullptr);

    /// Whether the window of this form goes here.
    bool Takes(const QString& form) const { return Names().contains(form); }
    bool Has(const QWidget& guest) const;
    /// Makes the window of a form, named after it, a part of the main window. It is shown and hidden by its own visibility.
    void Take(QWidget& guest);
    /// Releases the window, which then has no parent and is hidden.
    void Release(QWidget& guest);
    void ReleaseAll();
    /// The width of the widget around the room in which the rows of both lists are shown whole; 0 for a room that is not beside a list.
    int WantedWidth() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    /// A docked window, and the frame around it.
    struct Berth {
        QPointer<QWidget> guest;
        QFrame* frame = nullptr;
    };
    QStringList Names() const;
    void FollowGuests();
    /// Adapts the width of a room beside a list to the width that the main window has.
    void FitWidth();

    QString forms_;
    QString beside_;
    int listColumns_ = 0;
    int columns_ = 0;
    int least_ = 0;
    QList<Berth> berths_;
};

}  // namespace vatro
