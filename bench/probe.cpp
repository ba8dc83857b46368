// SPDX-License-Identifier: MIT
//
// A plug-in that ends a program of Qt Widgets once it has been painted, so that the program itself can be measured from its start, and
// not a copy of it that was built for the measurement. Qt loads it when asked by the environment:
//
//   QT_PLUGIN_PATH=build/release/bench/plugins QT_QPA_GENERIC_PLUGINS=vatroprobe:10000
//
// waits until a list of 10,000 rows has been painted; with 0, until a window has been. It then prints one line on standard output, the
// processor time used and the most memory held so far ("0.123 s 45678 kB"), and ends the process without any shutdown. With
// "10000:CALL,CALL" it types these calls into the field that has the focus instead, with Esc after each, prints a line with the
// milliseconds from each character until everything is painted, and lets the process go on.
#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QKeyEvent>
#include <QMainWindow>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fstream>
#include <string>
#include <utility>

#include <unistd.h>

namespace {

/// The most memory that this process has held, in kB.
long HighWater() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        long size = 0;
        if (word == "VmHWM:" && status >> size) return size;
    }
    return 0;
}

class Probe : public QObject {
public:
    Probe(int rows, QStringList calls) : rows_(rows), calls_(std::move(calls)) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && told_) {
            // Runs when this painting, and whatever else is ready, is over.
            QTimer::singleShot(0, this, [this] { painted_ = Clock::now(); });
        } else if (event->type() == QEvent::Paint && Awaited(watched)) {
            told_ = true;
            // The filter sees the event before the widget does, so the widget has been painted by the next round.
            QTimer::singleShot(0, this, [this] { Tell(); });
        }
        return false;
    }

private:
    bool Awaited(QObject* watched) const {
        if (rows_ == 0) return qobject_cast<QMainWindow*>(watched) != nullptr;
        const auto* const view = qobject_cast<QAbstractItemView*>(watched->parent());
        return view != nullptr && view->viewport() == watched && view->model() != nullptr && view->model()->rowCount() == rows_;
    }

    void Tell() {
        timespec used{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
        char line[64];
        std::snprintf(line, sizeof line, "%.4f s %ld kB\n", static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9,
                      HighWater());
        const auto length = std::strlen(line);
        const bool told = write(STDOUT_FILENO, line, length) == static_cast<ssize_t>(length);
        if (calls_.empty()) _exit(told ? 0 : 1);
        QTimer::singleShot(2000, this, [this] { TypeNext(); });
    }

    static void Press(Qt::Key key, const QString& text) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QWidget* const field = QApplication::focusWidget();
            if (field == nullptr) continue;
            QKeyEvent event(type, key, Qt::NoModifier, text);
            QCoreApplication::sendEvent(field, &event);
        }
    }

    /// Types the next character, and notes a little later when the last painting was over.
    void TypeNext() {
        if (calls_.empty()) {
            std::printf("%s\n", times_.c_str());
            std::fflush(stdout);
            return;
        }
        if (calls_.front().isEmpty()) {
            calls_.removeFirst();
            Press(Qt::Key_Escape, QStringLiteral("\x1b"));
            QTimer::singleShot(300, this, [this] { TypeNext(); });
            return;
        }
        const QChar character = calls_.front().front();
        calls_.front().remove(0, 1);
        const auto pressed = Clock::now();
        painted_ = pressed;
        Press(static_cast<Qt::Key>(character.unicode()), character);
        QTimer::singleShot(100, this, [this, pressed] {
            times_ += std::to_string(std::chrono::duration<double, std::milli>(painted_ - pressed).count()) + " ";
            TypeNext();
        });
    }

    using Clock = std::chrono::steady_clock;

    int rows_;
    QStringList calls_;
    bool told_ = false;
    Clock::time_point painted_;
    std::string times_;
};

}  // namespace

class ProbePlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "probe.json")

public:
    QObject* create(const QString& /*key*/, const QString& orders) override {
        const QStringList parts = orders.split(QLatin1Char(':'));
        return new Probe(parts.value(0).toInt(), parts.value(1).split(QLatin1Char(','), Qt::SkipEmptyParts));
    }
};

#include "probe.moc"
