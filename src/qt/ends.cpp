// SPDX-License-Identifier: MIT
#include "ends.h"

#include <QApplication>
#include <QEvent>
#include <QSessionManager>
#include <QThread>
#include <QTimer>
#include <QWidget>
#include <cstdlib>
#include <utility>

#include "deliver.h"
#include "disk_settings.h"
#include "forms.h"
#include "frame/start.h"
#include "platform.h"
#include "program.h"
#include "qt_front.h"

namespace vatro {

namespace {

/// Milliseconds between two steps. A step may have to be repeated, because a form may refuse to close for a moment or a handler may be
/// running.
constexpr int kBetweenSteps = 20;
/// Milliseconds to wait for the settings to be stored.
constexpr unsigned long kStorePatience = 2000;

/// The settings to store if the process ends now; null while no program runs.
DiskSettings* atExit = nullptr;

/// Run by exit(). Qt and Xlib call exit() when the connection to the screen is lost, possibly in the middle of a handler. Ends the process
/// itself: the exit handlers of the libraries would find the program as it was, with the sound running, and could crash.
void StoreAtExit() {
    if (atExit == nullptr) return;
    DiskSettings& settings = *std::exchange(atExit, nullptr);
    if (ProgramRuns()) {
        try {
            // Close the file that an interrupted handler may have open; the handler will not continue.
            platform().files.Close(1);
        } catch (const RunTimeError&) {
            // Nobody can be told any more.
        }
        StoreRunningProgram();
    }
    // Also stores the changes of a batch that will not be completed.
    settings.Flush();
    std::_Exit(EXIT_FAILURE);
}

QtMessageHandler before = nullptr;

/// When Qt loses a Wayland compositor, it calls _exit(), mostly on another thread. The message that it prints just before is the only
/// sign. When it loses an X server it prints one too, and then calls exit().
void StoreBeforeLeaving(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (before != nullptr) before(type, context, text);
    if (type == QtDebugMsg) return;
    if (!text.startsWith(QStringLiteral("The Wayland connection")) && !text.startsWith(QStringLiteral("The X11 connection"))) return;
    if (QThread::currentThread() == qApp->thread()) return StoreAtExit();
    QMetaObject::invokeMethod(qApp, StoreAtExit, Qt::QueuedConnection);
    // Normally the process ends during this sleep; the limit applies if the program hangs.
    QThread::msleep(kStorePatience);
}

}  // namespace

Ends::Ends(DiskSettings& settings) : signals_(*this, [this] { Close(); }) {
    qApp->installEventFilter(this);
    // Only store the settings here: the session may continue after all. The program closes when it receives the quit event.
    connect(
        qApp, &QGuiApplication::commitDataRequest, this, [] { StoreRunningProgram(); }, Qt::DirectConnection);
    connect(qApp, &QCoreApplication::aboutToQuit, this, [] {
        if (ProgramRuns()) StoreRunningProgram();
    });
    atExit = &settings;
    before = qInstallMessageHandler(StoreBeforeLeaving);
    static const bool registered = std::atexit(StoreAtExit) == 0;
    static_cast<void>(registered);
}

void StoreBeforeExitHandlersSoFar() {
    static_cast<void>(std::atexit(StoreAtExit));
}

Ends::~Ends() {
    qInstallMessageHandler(std::exchange(before, nullptr));
    atExit = nullptr;
}

void Ends::Close() {
    if (!std::exchange(asked_, true)) CloseNext();
}

void Ends::CloseNext() {
    // Schedule the next step first: closing a form may open a box, which waits until the next step answers it.
    QTimer::singleShot(kBetweenSteps, this, &Ends::CloseNext);
    // A handler that is repainting its window must not lose its form now.
    if (TicksHeld()) return;
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
        return;
    }
    // Close boxes, dialogues and modal forms, as the button in their frame would.
    if (QWidget* modal = QApplication::activeModalWidget()) {
        modal->close();
        return;
    }
    if (!ProgramRuns() || InsideEvent()) return;
    for (Form* form : LoadedForms()) {
        if (form->Kind() != FormKind::Main) continue;
        Deliver([form] { form->UserClosed(); });
        return;
    }
}

bool Ends::eventFilter(QObject* watched, QEvent* event) {
    // Sent by the session manager or the desktop's dock. Qt's default would close the windows one by one and stop at the first form
    // window, because that ignores the event and only notifies its form.
    if (event->type() != QEvent::Quit || watched != qApp || !ProgramRuns()) return false;
    event->ignore();
    Close();
    return true;
}

}  // namespace vatro
