// SPDX-License-Identifier: MIT
//
// The page of the very first start. It asks for what a station must set before its first contact, all in one window, so that the start
// itself has nothing to ask. Esc leaves everything to the questions of the program itself.
//
// Enter goes to the next field, and from the last one it accepts. An answer that is wrong is told below its field; nothing that was typed
// is lost. Logic and texts are in extras/first_start.h.
#pragma once

#include <QDialog>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "datetime.h"
#include "first_start.h"
#include "held_keys.h"

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;

namespace vatro {

class FieldMark;
class ScrollRoom;

class FirstPage : public QDialog {
    Q_OBJECT

public:
    /// What the page needs from outside.
    struct Surroundings {
        std::filesystem::path home;
        /// The directory with the list of operators.
        std::filesystem::path tables;
        /// The computer's local time.
        std::function<DateTime()> now;
        /// Lets the operator choose a directory; returns its path in UTF-8, or nothing.
        std::function<std::string()> chooseDirectory = [] { return std::string(); };
    };

    FirstPage(const FirstAnswers& proposed, Surroundings surroundings);
    ~FirstPage() override;

    FirstAnswers Answers() const;
    /// Accepts the answers if they are right and the disk could be prepared; otherwise says what is wrong.
    void accept() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A field with the line below it that says what is wrong.
    struct Row {
        QWidget* field = nullptr;
        QLabel* message = nullptr;
    };

    QLabel* AddMessage();
    void AddRow(const QString& caption, QWidget& buddy, class QLayout& fields);
    QLineEdit* AddField(const QString& caption, const QString& name, int characters, const QString& hint);
    void AddClass(char chosen);
    void AddDirectory(const FirstAnswers& proposed);
    void AddClock(int offset);
    void AddButtons();
    Row RowOf(FirstQuestion about) const;
    void Say(const Row& row, const std::string& text, bool wrong);
    /// Shows what is wrong, and goes to the first of it. Returns whether nothing is.
    bool Tell(const std::vector<Complaint>& complaints);
    void ForgetComplaint(const Row& row);
    /// Says what the directory holds.
    void LookAtDirectory();
    void ShowClock();
    /// Handles Enter in one of the widgets.
    void Enter(QWidget& from);
    void ChooseDirectory();
    /// Grows with what it shows, as far as the screen allows.
    void Fit();

    Surroundings surroundings_;
    ScrollRoom* room_ = nullptr;
    QGridLayout* grid_ = nullptr;
    QLineEdit* call_ = nullptr;
    QRadioButton* classA_ = nullptr;
    QRadioButton* classB_ = nullptr;
    QLineEdit* telephone_ = nullptr;
    QLineEdit* operator_ = nullptr;
    QLineEdit* directory_ = nullptr;
    QPushButton* choose_ = nullptr;
    QCheckBox* useLogs_ = nullptr;
    QSpinBox* offset_ = nullptr;
    QLabel* question_ = nullptr;
    QLabel* advice_ = nullptr;
    QPushButton* goOn_ = nullptr;
    QLabel* callMessage_ = nullptr;
    QLabel* operatorMessage_ = nullptr;
    QLabel* directoryMessage_ = nullptr;
    QLabel* useLogsMessage_ = nullptr;
    /// The directory that LookAtDirectory last looked at.
    QString seen_;
    /// Shows which field gets the keys, also where the style shows little.
    FieldMark* mark_ = nullptr;
    HeldKeys held_;
};

/// At the very first start: shows the page, and stores its answers in the settings at once. Does nothing at any other start, or if another
/// copy of the program runs. Call as an event, before StartProgram.
void AskAtFirstStart();

}  // namespace vatro
