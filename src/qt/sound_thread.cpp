// SPDX-License-Identifier: MIT
#include "sound_thread.h"

#include <QCoreApplication>
#include <QSemaphore>
#include <map>

#include "sound_player.h"

namespace vatro {

namespace {

/// Until the thread has ended, in milliseconds.
constexpr int kPatience = 2000;

}  // namespace

class SoundThread::Home : public QObject {
public:
    ~Home() override {
        // A sink lets events run when it goes.
        QCoreApplication::removePostedEvents(this);
        players.clear();
    }
    std::map<int, std::unique_ptr<SoundPlayer>> players;
};

SoundThread::~SoundThread() {
    End();
}

void SoundThread::Start() {
    if (thread_ != nullptr || ended_) return;
    thread_ = std::make_unique<QThread>();
    thread_->setObjectName(QStringLiteral("sound"));
    home_ = new Home;
    home_->moveToThread(thread_.get());
    QObject::connect(thread_.get(), &QThread::finished, home_, &QObject::deleteLater);
    thread_->start(QThread::TimeCriticalPriority);
}

void SoundThread::Queue(std::function<void()> task) const {
    if (home_ != nullptr) QMetaObject::invokeMethod(home_, std::move(task), Qt::QueuedConnection);
}

bool SoundThread::Await(std::function<void()> task, int milliseconds) {
    Start();
    if (home_ == nullptr) return false;
    const auto done = std::make_shared<QSemaphore>();
    Queue([done, task = std::move(task)] {
        task();
        done->release();
    });
    return done->tryAcquire(1, milliseconds);
}

int SoundThread::AddPlayer(std::function<std::unique_ptr<SoundPlayer>()> make) {
    Start();
    const int player = ++lastPlayer_;
    Queue([home = home_, player, make = std::move(make)] { home->players[player] = make(); });
    return player;
}

void SoundThread::Ask(int player, std::function<void(SoundPlayer&)> task) {
    Queue([home = home_, player, task = std::move(task)] {
        const auto found = home->players.find(player);
        if (found != home->players.end()) task(*found->second);
    });
}

void SoundThread::RemovePlayer(int player) {
    // It is out of reach before it goes.
    Queue([home = home_, player] { home->players.extract(player); });
}

bool SoundThread::End() {
    ended_ = true;
    if (thread_ == nullptr) return true;
    home_ = nullptr;
    thread_->quit();
    if (!thread_->wait(kPatience)) {
        static_cast<void>(thread_.release());
        return false;
    }
    thread_.reset();
    return true;
}

}  // namespace vatro
