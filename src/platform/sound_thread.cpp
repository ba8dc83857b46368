// SPDX-License-Identifier: MIT
#include "sound_thread.h"

#include <future>
#include <map>
#include <utility>

#include "sound_player.h"

namespace vatro {

namespace {

/// How long to wait for the thread to end.
constexpr std::chrono::milliseconds kPatience{2000};

}  // namespace

struct SoundThread::Players {
    std::map<int, std::unique_ptr<SoundPlayer>> byNumber;
};

SoundThread::SoundThread(std::unique_ptr<SoundLoop> loop) : loop_(std::move(loop)), players_(std::make_shared<Players>()) {}

SoundThread::~SoundThread() {
    End();
}

void SoundThread::Start() {
    if (started_ || ended_) return;
    started_ = true;
    loop_->Start([players = players_] { players->byNumber.clear(); });
}

void SoundThread::Queue(std::function<void()> task) {
    if (started_ && !ended_) loop_->Queue(std::move(task));
}

bool SoundThread::Await(std::function<void()> task, std::chrono::milliseconds patience) {
    Start();
    if (ended_) return false;
    // Shared, because either side may be the last to use it.
    const auto done = std::make_shared<std::promise<void>>();
    const std::future<void> answer = done->get_future();
    Queue([done, task = std::move(task)] {
        task();
        done->set_value();
    });
    return answer.wait_for(patience) == std::future_status::ready;
}

int SoundThread::AddPlayer(std::function<std::unique_ptr<SoundPlayer>()> make) {
    Start();
    const int player = ++lastPlayer_;
    Queue([players = players_, player, make = std::move(make)] { players->byNumber[player] = make(); });
    return player;
}

void SoundThread::Ask(int player, std::function<void(SoundPlayer&)> task) {
    Queue([players = players_, player, task = std::move(task)] {
        const auto found = players->byNumber.find(player);
        if (found != players->byNumber.end()) task(*found->second);
    });
}

void SoundThread::RemovePlayer(int player) {
    // Take the player out of the map before it is destroyed: the sound system may run other tasks during destruction.
    Queue([players = players_, player] { players->byNumber.extract(player); });
}

bool SoundThread::End() {
    if (ended_) return true;
    ended_ = true;
    return !started_ || loop_->End(kPatience);
}

}  // namespace vatro
