// SPDX-License-Identifier: MIT
//
// The commands of the menu Ekstra that change the speed of the Morse with a key. A text that is being sent keeps its speed; the change
// takes effect with the next one.
#pragma once

#include <QObject>
#include <functional>
#include <optional>

namespace vatro {

class QtFront;

class MorseSpeed : public QObject {
    Q_OBJECT

public:
    /// Adds the commands. `front` must outlive this object.
    explicit MorseSpeed(QtFront& front);

    static constexpr int kSlowest = 6;
    static constexpr int kFastest = 60;
    static constexpr int kStep = 2;

    /// Called with the new speed in words per minute, whether or not it has changed.
    std::function<void(int)> told = [](int) {};

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Change(int step);
    void Apply();

    QtFront& front_;
    /// The speed of the next text, while a text is being sent.
    std::optional<int> wanted_;
};

}  // namespace vatro
