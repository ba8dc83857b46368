// SPDX-License-Identifier: MIT
//
// The page of the very first start. It asks for what a station must set before its first contact, all in one window, so that the start
// itself has nothing to ask. Esc leaves everything to the questions of the program itself.
//
// Enter goes to the next field, and from the last one it accepts. An answer that is wrong is told below its field; nothing that was typed
// is lost. The fields are in first_fields.h, logic and texts in extras/first_start.h, and ask_at_first_start.h shows the page.
#pragma once

#include <QDialog>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "datetime.h"
#include "first_start.h"
#include "held_keys.h"

class QPushButton;

namespace vatro {

class FieldMark;
class FirstFields;
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
    QLayout* MakeButtons();
    void Say(FirstQuestion about, const std::string& text, bool wrong);
    void Unsay(FirstQuestion about);
    /// Shows what is wrong, and goes to the first of it. Returns whether nothing is.
    bool Tell(const std::vector<Complaint>& complaints);
    /// Says what there is to say about an answer that has just been given.
    void LookAt(FirstQuestion about);
    /// Says what the directory holds.
    void LookAtDirectory();
    void ShowClock();
    /// Handles Enter in one of the widgets.
    void Enter(QWidget& from);
    void ChooseDirectory();
    /// Grows with what it shows, as far as the screen allows.
    void Fit();

    Surroundings surroundings_;
    FirstFields* fields_;
    ScrollRoom* room_;
    QPushButton* goOn_ = nullptr;
    /// The directory that LookAtDirectory last looked at.
    std::optional<std::string> seen_;
    /// Shows which field gets the keys, also where the style shows little.
    FieldMark* mark_ = nullptr;
    HeldKeys held_;
};

}  // namespace vatro
