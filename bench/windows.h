// SPDX-License-Identifier: MIT
//
// The program in its windows, on a disk and settings of its own, for benchmarks that press its keys.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <filesystem>
#include <string>
#include <vector>

#include "clock.h"
#include "disk_files.h"
#include "disk_settings.h"
#include "printer.h"
#include "qt_front.h"
#include "sound_card.h"
#include "started_program.h"
#include "unattended.h"

namespace vatro::bench {

/// Processes events until a widget has been painted.
class UntilPainted : public QObject {
public:
    explicit UntilPainted(QWidget& widget) : widget_(widget) { widget.installEventFilter(this); }
    void Wait();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& widget_;
    bool painted_ = false;
};

/// Processes events until none has come for a while; everything that has changed has then been painted.
void UntilQuiet();

/// Presses and releases a key.
void PressKey(QWidget& field, Qt::Key key, const QString& text);

/// Types characters, and the keys of these: ' ' is Space, '\r' is Enter, '\x1b' is Esc, '\b' is Backspace. They go to the field that has
/// the focus.
void TypeKeys(std::string_view keys);

/// A station with a log and the settings that point to it.
class Station {
public:
    explicit Station(const std::vector<std::string>& log);
    std::filesystem::path SettingsFile() const { return workplace_.Path("vatro.conf"); }
    std::filesystem::path Path(std::string_view name) const { return workplace_.Path(name); }

private:
    Workplace workplace_;
};

/// The program in its windows. Only one can exist at a time.
class Windows {
public:
    explicit Windows(const std::filesystem::path& settings) : settings_(settings) {}
    ~Windows();
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    /// Returns when a log of so many lines has been painted.
    void Start(int lines);
    QWidget* WidgetOf(const Control& control) const { return front_.WidgetOf(control); }
    /// The part of a list that paints.
    QWidget& Surface(const Control& list) const;

private:
    DiskSettings settings_;
    QtFront front_;
    Unattended unattended_;
    DiskFiles files_;
    QtClock clock_;
    QtSound sound_;
    QtPrinter pages_;
    PageSurface printer_{pages_};
};

}  // namespace vatro::bench
