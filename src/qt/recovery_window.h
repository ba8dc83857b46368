// SPDX-License-Identifier: MIT
//
// The window that tells at the start what is wrong in the log directory, one card for each finding, and asks whether to put it
// right. Enter does what it proposes, Esc changes nothing.
#pragma once

#include <QDialog>
#include <string>
#include <vector>

#include "recovery.h"

class QComboBox;
class QVBoxLayout;

namespace vatro {

class RecoveryWindow : public QDialog {
public:
    /// `directory` is shown as the place that it is about. The findings must not be empty.
    RecoveryWindow(const std::filesystem::path& directory, const std::vector<Finding>& findings, QWidget* owner = nullptr);
    /// Whether there is anything to put right; otherwise the window only tells.
    bool HasProposals() const { return hasProposals_; }
    /// For each finding the log chosen for a copy; empty where there was no choice.
    std::vector<std::string> Choices() const;

private:
    void AddCard(const Finding& finding, QVBoxLayout& cards);

    bool hasProposals_ = false;
    std::vector<QComboBox*> choices_;
};

/// Looks for damage, asks, repairs and tells of the outcome. Shows nothing where nothing is found. Gives the logs whose damage the
/// operator has seen and left as it is.
std::vector<std::filesystem::path> Recover(const RecoveryPlaces& places, History& history);

}  // namespace vatro
