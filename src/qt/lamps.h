// SPDX-License-Identifier: MIT
//
// The lamps of the desktop program: reads the clocks every second and before each key, follows what happens to the files, and shows both in
// the corner of the menu bar. Created only by src/main.cpp.
#pragma once

#include <QPointer>
#include <QTimer>
#include <functional>

#include "clock_watch.h"
#include "lamp_row.h"
#include "last_contact.h"

namespace vatro {

class CopyKeeper;
class QtFront;
class Safety;

class Lamps : public QObject {
    Q_OBJECT

public:
    /// All arguments must outlive this object.
    Lamps(QtFront& front, Safety& safety, CopyKeeper& copy);
    ~Lamps() override;

    /// Call when the main window is there: puts the lamps into its menu bar.
    void Begin();

    /// Confirms in the lamp of the last contact what the operator has just done. The texts are in the code page.
    void Tell(std::string_view text, std::string_view tip);

    /// A Morse text was to be sent. Tells each time it was not, until one is.
    void MorseTried(bool sent);

    /// Reads the computer's clocks; replaceable. The offset is filled in afterwards.
    std::function<ClockWatch::Reading()> clocks;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LookAtClock();
    void LookAtCopy();
    void CatchUp();
    void Clicked(LampKind kind);
    void ShowLastContact();

    QtFront& front_;
    Safety& safety_;
    CopyKeeper& copy_;
    ClockWatch clock_;
    LastContact lastContact_;
    QTimer everySecond_;
    QPointer<LampRow> row_;
};

}  // namespace vatro
