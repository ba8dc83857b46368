// SPDX-License-Identifier: MIT
//
// Remembers the size of the main window, and whether it was maximised or filled the screen. The program itself keeps only its place. The
// settings of this class are in a section of their own.
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

class QAction;
class QMainWindow;

namespace vatro {

class QtFront;
class Settings;

class MainSize : public QObject {
    Q_OBJECT

public:
    /// Adds the command "Hele skærmen" to the menu Ekstra. Both arguments must outlive this object.
    MainSize(QtFront& front, Settings& settings);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Restore(QMainWindow& window);
    void Store();
    void ToggleFullScreen();

    Settings& settings_;
    QPointer<QMainWindow> window_;
    QPointer<QAction> fullScreen_;
    /// A window that is being dragged changes its size many times a second.
    QTimer soon_;
};

}  // namespace vatro
