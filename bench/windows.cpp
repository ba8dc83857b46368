// SPDX-License-Identifier: MIT
#include "windows.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QTimer>
#include <chrono>
#include <stdexcept>

#include "deliver.h"
#include "entry/frmMain.h"
#include "frame/start.h"
#include "program.h"

namespace vatro::bench {

void UntilPainted::Wait() {
    const auto start = std::chrono::steady_clock::now();
    while (!painted_) {
        QCoreApplication::processEvents();
        if (std::chrono::steady_clock::now() - start > std::chrono::seconds(60)) throw std::runtime_error("nothing is painted");
    }
    // The filter sees the event before the widget does, so the widget has been painted by the next round.
    QCoreApplication::processEvents();
}

bool UntilPainted::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &widget_ && event->type() == QEvent::Paint) painted_ = true;
    return false;
}

void UntilQuiet() {
    constexpr std::chrono::milliseconds kWhile{60};
    // What the first wait has started is painted in the second.
    for (int wait = 0; wait < 2; ++wait) {
        bool over = false;
        QTimer::singleShot(kWhile, Qt::PreciseTimer, [&over] { over = true; });
        while (!over) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void PressKey(QWidget& field, Qt::Key key, const QString& text) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&field, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&field, &release);
}

void TypeKeys(std::string_view keys) {
    for (const char character : keys) {
        QWidget* const field = QApplication::focusWidget();
        if (field == nullptr) throw std::runtime_error("no field has the focus");
        const Qt::Key key = character == '\r'     ? Qt::Key_Return
                            : character == '\x1b' ? Qt::Key_Escape
                            : character == '\b'   ? Qt::Key_Backspace
                                                  : static_cast<Qt::Key>(character);
        PressKey(*field, key, QString(QLatin1Char(character)));
    }
}

Station::Station(const std::vector<std::string>& log) {
    DiskSettings settings(SettingsFile());
    workplace_.Furnish(log, settings);
}

Windows::~Windows() {
    if (ProgramRuns()) EndProgram();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void Windows::Start(int lines) {
    InstallPlatform(front_, {unattended_, settings_, files_, clock_, unattended_, unattended_, sound_, printer_, Version{}});
    BeginProgram();
    Deliver([] { StartProgram(); });
    if (frmMain->log.ListCount() != lines) throw std::runtime_error("the log was not read");
    UntilPainted(Surface(frmMain->log)).Wait();
}

QWidget& Windows::Surface(const Control& list) const {
    auto* const area = qobject_cast<QAbstractScrollArea*>(WidgetOf(list));
    if (area == nullptr) throw std::runtime_error("a list without a widget");
    return *area->viewport();
}

}  // namespace vatro::bench
