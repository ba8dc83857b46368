// SPDX-License-Identifier: MIT
//
// The fields of the first page with their captions. Below each field that can be answered wrongly is a line for what there is to say about
// the answer. Whether an answer is right is decided by the page (first_page.h).
#pragma once

#include <QWidget>
#include <string>

#include "first_start.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;

namespace vatro {

class FirstFields : public QWidget {
    Q_OBJECT

public:
    explicit FirstFields(const FirstAnswers& proposed);

    FirstAnswers Answers() const;
    QWidget& Field(FirstQuestion about) const;
    /// Shows the text below the field, in bold and in the colour of what is wrong if `wrong`. An empty text takes the line away.
    void Say(FirstQuestion about, const std::string& text, bool wrong);
    /// Takes the line below the field away.
    void Unsay(FirstQuestion about);
    /// Shows or hides the question whether to go on in the logs of the directory.
    void ShowUseLogs(bool shown);
    /// Takes back the consent to go on in the logs.
    void ForbidLogs();
    void SetDirectory(const std::string& utf8);
    void ShowClock(const std::string& question, const std::string& advice);
    /// The field after this one; null after the last.
    QWidget* After(const QWidget& field) const;
    bool IsLast(const QWidget& field) const;

Q_SIGNALS:
    /// The answer has been changed.
    void Changed(FirstQuestion about);
    /// The operator has finished typing the answer.
    void Finished(FirstQuestion about);
    void OffsetChanged();
    void ChooseClicked();

private:
    /// A field with the line below it.
    struct Row {
        QWidget* field = nullptr;
        QLabel* message = nullptr;
    };

    QLabel* AddMessage();
    void AddRow(const QString& caption, QWidget& buddy, QLayout& fields);
    QLineEdit* AddField(const QString& caption, const QString& name, int characters, const QString& hint);
    void AddClass(char chosen);
    void AddDirectory(const std::string& directory);
    void AddClock(int offset);
    void Watch(QLineEdit& field, FirstQuestion about);
    Row RowOf(FirstQuestion about) const;

    QGridLayout* grid_ = nullptr;
    QLineEdit* call_ = nullptr;
    QRadioButton* classA_ = nullptr;
    QRadioButton* classB_ = nullptr;
    QLineEdit* telephone_ = nullptr;
    QLineEdit* operator_ = nullptr;
    QLineEdit* directory_ = nullptr;
    QCheckBox* useLogs_ = nullptr;
    QSpinBox* offset_ = nullptr;
    QLabel* question_ = nullptr;
    QLabel* advice_ = nullptr;
    QLabel* callMessage_ = nullptr;
    QLabel* operatorMessage_ = nullptr;
    QLabel* directoryMessage_ = nullptr;
    QLabel* useLogsMessage_ = nullptr;
};

/// A label of plain text in as many lines as it needs.
QLabel* Words(const QString& text);

}  // namespace vatro
