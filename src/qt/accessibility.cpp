// SPDX-License-Identifier: MIT
#include "accessibility.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QRadioButton>

#include "column_head.h"
#include "picture_view.h"

namespace vatro {

namespace {

class AccessibleCombo : public QAccessibleWidget {
public:
    explicit AccessibleCombo(QComboBox& combo) : QAccessibleWidget(&combo, QAccessible::ComboBox), combo_(combo) {}

    /// The list and, if the combo box is editable, the text field.
    int childCount() const override { return combo_.isEditable() ? 2 : 1; }
    QAccessibleInterface* child(int index) const override {
        if (index == 0) return QAccessible::queryAccessibleInterface(combo_.view());
        return index == 1 && combo_.isEditable() ? QAccessible::queryAccessibleInterface(combo_.lineEdit()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        if (child->object() == combo_.view()) return 0;
        return combo_.isEditable() && child->object() == combo_.lineEdit() ? 1 : -1;
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? combo_.currentText() : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.expanded = combo_.view()->isVisible();
        state.editable = combo_.isEditable() && !combo_.lineEdit()->isReadOnly();
        return state;
    }
    QStringList actionNames() const override { return {showMenuAction(), setFocusAction()}; }
    void doAction(const QString& name) override {
        if (name == showMenuAction())
            combo_.showPopup();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    QComboBox& combo_;
};

class AccessibleOption : public QAccessibleWidget {
public:
    explicit AccessibleOption(QRadioButton& option) : QAccessibleWidget(&option, QAccessible::RadioButton), option_(option) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = option_.isChecked();
        return state;
    }
    QStringList actionNames() const override { return {toggleAction(), setFocusAction()}; }
    void doAction(const QString& name) override {
        if (name == toggleAction())
            option_.click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    QRadioButton& option_;
};

QAccessibleInterface* Present(const QString& /*className*/, QObject* object) {
    if (auto* combo = qobject_cast<QComboBox*>(object)) return new AccessibleCombo(*combo);
    if (auto* option = qobject_cast<QRadioButton*>(object)) return new AccessibleOption(*option);
    // The frame around controls that belong together, as opposed to the many widgets derived from it.
    if (object->metaObject() == &QFrame::staticMetaObject && object->findChild<ColumnHead*>({}, Qt::FindDirectChildrenOnly) != nullptr)
        return new QAccessibleWidget(qobject_cast<QFrame*>(object), QAccessible::Grouping);
    if (auto* head = qobject_cast<ColumnHead*>(object)) return new QAccessibleWidget(head, QAccessible::StaticText);
    if (auto* picture = qobject_cast<PictureView*>(object)) return new QAccessibleWidget(picture, QAccessible::Graphic);
    return nullptr;
}

}  // namespace

void InstallAccessibility() {
    QAccessible::installFactory(Present);
}

}  // namespace vatro
