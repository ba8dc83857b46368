// SPDX-License-Identifier: MIT
//
// The live second copy of the logs in the desktop program: the command "Løbende kopi...", the thread that copies, what it finds, and the
// last word at the end. Created only by src/main.cpp.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <optional>
#include <string>

#include "copy_lamp.h"
#include "live_copy.h"

class QMainWindow;
class QMenu;

namespace vatro {

class QtFront;
class Safety;
class Settings;

class CopyKeeper : public QObject {
    Q_OBJECT

public:
    /// Adds the command to the menu Ekstra. All arguments must outlive this object.
    CopyKeeper(QtFront& front, Safety& safety, Settings& settings);
    ~CopyKeeper() override;

    /// Call when the main window is there: starts to copy if a directory has been chosen.
    void Begin();
    /// Call every second, and when `changed` was emitted: follows the directories of the program, and offers what was found in the copy.
    void Look();
    Lamp Shown() const;
    /// Runs the command. Call as an event.
    void Choose();
    /// Brings the copy up to date once more. Returns false if that takes too long; the thread is then still at work, so the process must
    /// end without the destruction of static objects.
    bool End();
    /// A sentence for the operator if the copy is behind at the end of the program; empty otherwise.
    std::string LastWord() const;

Q_SIGNALS:
    /// How the copy stands has changed. Emitted on the thread of the copy.
    void changed();

private:
    LiveCopy::Options Options();
    void Follow(bool adopt);
    CopyPlaces Places() const;
    std::string ChosenDirectory();
    std::string TypedDirectory();
    void AskForDirectory();
    void Offer();
    bool MayOffer() const;

    Safety& safety_;
    Settings& settings_;
    LiveCopy copy_;
    /// As the operator chose it; empty if there is no copy.
    std::string directory_;
    std::string id_;
    /// The directories that the thread works with.
    CopyPlaces followed_;
    /// Contacts in the copy that the logs lack, and that the operator has not been shown.
    std::size_t found_ = 0;
    /// Since the program started or the directory was chosen: a window that opens then does not interrupt a contact.
    QElapsedTimer sinceBegin_;
};

}  // namespace vatro
