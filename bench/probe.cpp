// SPDX-License-Identifier: MIT
//
// A plug-in that ends a program of Qt Widgets once it has been painted, so that the program itself can be measured from its start, and
// not a copy of it that was built for the measurement. Qt loads it when asked by the environment:
//
//   QT_PLUGIN_PATH=build/release/bench/plugins QT_QPA_GENERIC_PLUGINS=vatroprobe:10000
//
// waits until a list of 10,000 rows has been painted; with 0, until a window has been. It then prints one line on standard output, the
// processor time used and the most memory held so far ("0.123 s 45678 kB"), and ends the process without any shutdown. With
// "10000:stay" the process goes on.
#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QMainWindow>
#include <QTimer>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <fstream>
#include <string>

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
    Probe(int rows, bool stays) : rows_(rows), stays_(stays) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && Awaited(watched)) {
            qApp->removeEventFilter(this);
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

    void Tell() const {
        timespec used{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
        char line[64];
        std::snprintf(line, sizeof line, "%.4f s %ld kB\n", static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9,
                      HighWater());
        const auto length = std::strlen(line);
        const bool told = write(STDOUT_FILENO, line, length) == static_cast<ssize_t>(length);
        if (!stays_) _exit(told ? 0 : 1);
    }

    int rows_;
    bool stays_;
};

}  // namespace

class ProbePlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "probe.json")

public:
    QObject* create(const QString& /*key*/, const QString& specification) override {
        const QStringList parts = specification.split(QLatin1Char(':'));
        return new Probe(parts.value(0).toInt(), parts.value(1) == QLatin1String("stay"));
    }
};

#include "probe.moc"
