// SPDX-License-Identifier: MIT
#include "sound_loop.h"

#include <QCoreApplication>
#include <utility>

namespace vatro {

class QtSoundLoop::Home : public QObject {
public:
    explicit Home(std::function<void()> atEnd) : atEnd_(std::move(atEnd)) {}
    ~Home() override {
        // Remove pending tasks first, because destroying a sink processes events.
        QCoreApplication::removePostedEvents(this);
        atEnd_();
    }
    Home(const Home&) = delete;
    Home& operator=(const Home&) = delete;

private:
    std::function<void()> atEnd_;
};

void QtSoundLoop::Start(std::function<void()> atEnd) {
    thread_ = std::make_unique<QThread>();
    thread_->setObjectName(QStringLiteral("sound"));
    home_ = new Home(std::move(atEnd));
    home_->moveToThread(thread_.get());
    QObject::connect(thread_.get(), &QThread::finished, home_, &QObject::deleteLater);
    thread_->start(QThread::TimeCriticalPriority);
}

void QtSoundLoop::Queue(std::function<void()> task) {
    QMetaObject::invokeMethod(home_, std::move(task), Qt::QueuedConnection);
}

bool QtSoundLoop::End(std::chrono::milliseconds patience) {
    home_ = nullptr;
    thread_->quit();
    if (!thread_->wait(QDeadlineTimer(patience))) {
        static_cast<void>(thread_.release());
        return false;
    }
    thread_.reset();
    return true;
}

}  // namespace vatro
