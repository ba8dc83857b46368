// SPDX-License-Identifier: MIT
//
// The command "Saml vinduerne" of the menu Ekstra: docks the side windows in the main window. It is on until the user switches it off; then
// the windows float at the places that the program stores.
#pragma once

#include <QObject>

namespace vatro {

class QtFront;
class Settings;

class Docking : public QObject {
    Q_OBJECT

public:
    /// Both arguments must outlive this object.
    Docking(QtFront& front, Settings& settings);

private:
    void Choose(bool docked);

    QtFront& front_;
    Settings& settings_;
};

}  // namespace vatro
