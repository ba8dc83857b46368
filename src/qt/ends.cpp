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

/// A form may refuse to close for a moment, and a handler be on its way.
constexpr int kBetweenSteps = 20;
/// What storing may take.
constexpr unsigned long kPatience = 2000;

/// Where the settings are stored if the process ends now; nothing while no program runs.
DiskSettings* atExit = nullptr;

/// Run by exit(), which Qt calls when the connection to the screen is lost, in the middle of whatever the program does.
void StoreAtExit() {
    if (atExit == nullptr) return;
    DiskSettings& settings = *std::exchange(atExit, nullptr);
    if (ProgramRuns()) {
        try {
            // The handler that has the file open does not go on.
            platform().files.Close(1);
        } catch (const RunTimeError&) {
            // Nobody is left to be told.
        }
        StoreRunningProgram();
    }
    // Also what stands in a batch that does not come to its end.
    settings.Flush();
}

QtMessageHandler before = nullptr;

/// Qt leaves by _exit() when it has lost a Wayland compositor, mostly from a thread of its own. What it says just before is the only
/// sign of it.
void StoreBeforeLeaving(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (before != nullptr) before(type, context, text);
    if (type == QtDebugMsg || !text.startsWith(QStringLiteral("The Wayland connection"))) return;
    if (QThread::currentThread() == qApp->thread()) return StoreAtExit();
    QMetaObject::invokeMethod(
        qApp,
        [] {
            StoreAtExit();
            std::_Exit(EXIT_FAILURE);
        },
        Qt::QueuedConnection);
    // The process ends while this thread sleeps, unless the program hangs.
    QThread::msleep(kPatience);
}

}  // namespace

Ends::Ends(DiskSettings& settings) : signals_(*this, [this] { Close(); }) {
    qApp->installEventFilter(this);
    // The session may go on after all: the program closes when it is told to quit.
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

Ends::~Ends() {
    qInstallMessageHandler(std::exchange(before, nullptr));
    atExit = nullptr;
}

void Ends::Close() {
    if (!std::exchange(asked_, true)) CloseNext();
}

void Ends::CloseNext() {
    // A timer of its own for each step: closing a form may open a box, and wait for the next step to answer it.
    QTimer::singleShot(kBetweenSteps, this, &Ends::CloseNext);
    // A handler that has its window painted is not at a place where its form may go.
    if (TicksHeld()) return;
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
        return;
    }
    // Boxes, dialogues and modal forms, as by the button of their frame.
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
    // The session manager, or the desktop's dock. Qt would close the windows one by one, and stop at the first that only tells
    // its form.
    if (event->type() != QEvent::Quit || watched != qApp || !ProgramRuns()) return false;
    event->ignore();
    Close();
    return true;
}

}  // namespace vatro
