// SPDX-License-Identifier: MIT
#include "copy_keeper.h"

#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QUuid>
#include <memory>
#include <utility>

#include "clock.h"
#include "codepage.h"
#include "deliver.h"
#include "dialogs.h"
#include "entry/frmMain.h"
#include "frame/settings_table.h"
#include "frame/state.h"
#include "frame/station.h"
#include "joined.h"
#include "names.h"
#include "platform.h"
#include "program.h"
#include "qt_front.h"
#include "qt_text.h"
#include "safety.h"

namespace vatro {

using namespace literals;

namespace {

constexpr std::string_view kDirectory = "KopiBib";
constexpr std::string_view kId = "KopiId";

/// How long after the start, or after the directory was chosen, a window may open by itself.
constexpr qint64 kAtOnce = 5000;
/// How long the end of the program waits for the copy.
constexpr std::chrono::milliseconds kCopyPatience{2000};

std::string Counted(std::size_t contacts) {
    return Joined({std::to_string(contacts), contacts == 1 ? " kontakt" : " kontakter"});
}

/// Where removable volumes are mounted, from the system's list; the volumes are not touched.
QStringList MountedVolumes() {
    QStringList volumes;
    QFile mounts(QStringLiteral("/proc/self/mounts"));
    if (!mounts.open(QIODevice::ReadOnly)) return volumes;
    for (const QByteArray& line : mounts.readAll().split('\n')) {
        const QString point = QString::fromUtf8(line.split(' ').value(1).replace("\\040", " "));
        for (const char* place : {"/media/", "/run/media/", "/mnt/"})
            if (point.startsWith(QLatin1String(place))) volumes.append(point);
    }
    return volumes;
}

/// A directory of the program as a path of the file system; empty if there is none.
std::filesystem::path Directory(std::string_view path) {
    return path.empty() ? std::filesystem::path() : NativePath(path);
}

}  // namespace

CopyKeeper::CopyKeeper(QtFront& front, Safety& safety, Settings& settings) : safety_(safety), settings_(settings), copy_(Options()) {
    safety_.writeBegins = [this] { copy_.WriteBegins(); };
    safety_.writeEnded = [this](const std::filesystem::path& log) { copy_.WriteEnded(NativeText(log.filename())); };
    front.extraEntries.emplace_back([this](QMainWindow&, QMenu& menu) {
        menu.addSeparator();
        QAction* command = menu.addAction(QStringLiteral("&Løbende kopi..."));
        command->setObjectName(QStringLiteral("extraCopy"));
        connect(command, &QAction::triggered, this, [this] { Deliver([this] { Choose(); }); });
    });
}

CopyKeeper::~CopyKeeper() {
    safety_.writeBegins = {};
    safety_.writeEnded = {};
}

LiveCopy::Options CopyKeeper::Options() {
    LiveCopy::Options options;
    options.universal = [] { return FromQtTime(QDateTime::currentDateTimeUtc()); };
    options.changed = [this] { Q_EMIT changed(); };
    return options;
}

void CopyKeeper::Begin() {
    directory_ = settings_.Read(setting::kSettings, kDirectory).value_or("");
    id_ = settings_.Read(setting::kSettings, kId).value_or("");
    Follow(false);
}

CopyPlaces CopyKeeper::Places() const {
    return {Directory(desk().gsLogLib), Directory(directory_), Directory(desk().gsBackupLib), id_};
}

void CopyKeeper::Follow(bool adopt) {
    followed_ = Places();
    sinceBegin_.start();
    if (directory_.empty()) return copy_.Follow(nullptr, false);
    SecondCopy::Surroundings surroundings;
    surroundings.now = [] { return FromQtTime(QDateTime::currentDateTime()); };
    surroundings.writes = copy_.Writes();
    surroundings.state = StateDirectory();
    copy_.Follow(std::make_unique<SecondCopy>(followed_, std::move(surroundings)), adopt);
}

void CopyKeeper::Look() {
    if (!ProgramRuns()) return;
    if (!directory_.empty() && Places() != followed_) Follow(false);
    found_ += copy_.TakeFound();
    if (found_ > 0 && sinceBegin_.elapsed() < kAtOnce && MayOffer()) Deliver([this] { Offer(); });
}

/// Whether a window may open now: nothing else is open, and nothing has been typed.
bool CopyKeeper::MayOffer() const {
    return !InsideEvent() && !TicksHeld() && QApplication::activeModalWidget() == nullptr && QApplication::activePopupWidget() == nullptr &&
           frmMain->fields[kCallField].Text().empty() && frmMain->fields[kNumberReceivedField].Text().empty();
}

void CopyKeeper::Offer() {
    found_ = 0;
    safety_.OfferCopy();
    // Any of the logs may have been merged.
    Follow(false);
}

Lamp CopyKeeper::Shown() const {
    Lamp lamp = CopyLamp(copy_.Status(), directory_);
    if (found_ == 0 || lamp.state != Lamp::State::Good) return lamp;
    lamp.state = Lamp::State::Notice;
    lamp.text = "kopien har mere";
    lamp.tip = Joined({"Den løbende kopi har "_t, Counted(found_),
                       ", som loggen ikke har. Historikken har gemt dem. Vælg Ekstra, Løbende kopi, når Call er tom."_t});
    return lamp;
}

void CopyKeeper::Choose() {
    if (found_ > 0) {
        if (frmMain->fields[kCallField].Text().empty() && frmMain->fields[kNumberReceivedField].Text().empty()) return Offer();
        MsgBox("Log kontakten først, eller tøm felterne med Esc. Vælg så Ekstra, Løbende kopi igen."_t);
        return;
    }
    if (directory_.empty()) return AskForDirectory();
    const Lamp lamp = Shown();
    QMessageBox box(DialogOwner());
    box.setWindowTitle(QStringLiteral("Løbende kopi"));
    box.setTextFormat(Qt::PlainText);
    box.setIcon(lamp.state == Lamp::State::Bad ? QMessageBox::Warning : QMessageBox::Information);
    box.setText(ToQt(Joined({lamp.text, "\n\n", lamp.tip})));
    const QPushButton* other = box.addButton(QStringLiteral("&Vælg bibliotek..."), QMessageBox::ActionRole);
    const QPushButton* stop = box.addButton(QStringLiteral("&Stop kopien"), QMessageBox::DestructiveRole);
    QPushButton* close = box.addButton(QStringLiteral("&Luk"), QMessageBox::RejectRole);
    box.setDefaultButton(close);
    box.setEscapeButton(close);
    connect(&box, &QDialog::finished, &box, [] { WaitLoop::Look(); });
    RunDialog(box);
    LeaveIfEnding();
    if (box.clickedButton() == other) return AskForDirectory();
    if (box.clickedButton() != stop) return;
    directory_.clear();
    settings_.Write(setting::kSettings, kDirectory, "");
    Follow(false);
}

/// Empty if the operator has cancelled.
std::string CopyKeeper::ChosenDirectory() {
    try {
        return DirectoryOf(ChooseMarkerFile("vatro.kopi", "Vælg bibliotek til løbende kopi"_t));
    } catch (const RunTimeError&) {
        return {};
    }
}

/// Like ChosenDirectory, but touches no directory: a dialogue that shows directories would wait for the one that does not answer.
std::string CopyKeeper::TypedDirectory() {
    QInputDialog dialog(DialogOwner());
    dialog.setWindowTitle(QStringLiteral("Vælg bibliotek til løbende kopi"));
    dialog.setLabelText(QStringLiteral("Det gamle bibliotek svarer ikke, så bibliotekerne kan ikke vises.\nVælg eller skriv det nye:"));
    dialog.setComboBoxItems(MountedVolumes());
    dialog.setComboBoxEditable(true);
    dialog.setTextValue(QString());
    dialog.setOkButtonText(QStringLiteral("&Vælg"));
    dialog.setCancelButtonText(QStringLiteral("&Annuller"));
    connect(&dialog, &QDialog::finished, &dialog, [] { WaitLoop::Look(); });
    RunDialog(dialog);
    LeaveIfEnding();
    return dialog.result() == QDialog::Accepted ? FromQt(dialog.textValue().trimmed()) : std::string();
}

void CopyKeeper::AskForDirectory() {
    const std::string chosen = copy_.Status().busy >= kCopyPatience ? TypedDirectory() : ChosenDirectory();
    if (chosen.empty()) return;
    const auto isSame = [&](const std::string& other) { return !other.empty() && Directory(chosen) == Directory(other); };
    if (isSame(desk().gsLogLib) || isSame(desk().gsBackupLib)) {
        MessageBox refused;
        refused.text = isSame(desk().gsLogLib) ? "Det er selve logbiblioteket. Vælg et andet bibliotek, helst på en USB-nøgle."_t
                                               : "Det er backupbiblioteket. Vælg et andet bibliotek, helst på en USB-nøgle."_t;
        refused.title = "Løbende kopi"_t;
        refused.icon = Icon::Exclamation;
        MsgBox(refused);
        return;
    }
    directory_ = chosen;
    if (id_.empty()) id_ = FromQt(QUuid::createUuid().toString(QUuid::WithoutBraces));
    settings_.Write(setting::kSettings, kDirectory, directory_);
    settings_.Write(setting::kSettings, kId, id_);
    Follow(true);
}

bool CopyKeeper::End() {
    return copy_.End(kCopyPatience);
}

std::string CopyKeeper::LastWord() const {
    const CopyStatus status = copy_.Status();
    if (!status.on || status.current) return {};
    CopyStatus last = status;
    // Whatever keeps the thread busy now, it has had its time.
    if (last.reason.empty()) last.busy = std::chrono::hours(1);
    const Lamp lamp = CopyLamp(last, directory_);
    return Joined({lamp.text, ".\n\n", lamp.tip});
}

}  // namespace vatro
