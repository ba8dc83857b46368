// SPDX-License-Identifier: MIT
//
// The window shown at the start if something is wrong in the log directory. It has one card for each finding and asks whether to
// repair. Enter carries out the proposals, Esc changes nothing.
#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "recovery.h"

class QComboBox;
class QDialogButtonBox;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace vatro {

class RecoveryWindow : public QDialog {
public:
    /// `directory` is shown as the place concerned. `findings` must not be empty.
    RecoveryWindow(const std::filesystem::path& directory, const std::vector<Finding>& findings, QWidget* owner = nullptr);
    /// For a window that opens in the middle of the program: only Alt and a letter, or a click, answers it, so that a contact that somebody
    /// goes on typing does not.
    void TakeNoEnter();
    /// Whether there is anything to repair; otherwise the window only informs.
    bool HasProposals() const { return hasProposals_; }
    /// For each finding, the log chosen for a copy; empty if there was no choice.
    std::vector<std::string> Choices() const;

private:
    void AddCard(const Finding& finding, QVBoxLayout& cards);

    bool hasProposals_ = false;
    QDialogButtonBox* buttons_ = nullptr;
    QScrollArea* cards_ = nullptr;
    QPushButton* accept_ = nullptr;
    std::vector<QComboBox*> choices_;
};

/// What to search for.
enum class RecoveryScope {
    Everything,
    /// Contacts of the second copy that the logs lack.
    SecondCopy,
};

/// Searches for damage, asks, repairs, and reports the outcome. Shows nothing if nothing is found. Returns the logs whose damage the
/// operator has seen but not repaired.
std::vector<std::filesystem::path> Recover(const RecoveryPlaces& places, History& history, RecoveryScope scope = RecoveryScope::Everything);

}  // namespace vatro
