// SPDX-License-Identifier: MIT
#include "platform/qt/QtRunLoop.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <limits>
#include <utility>

namespace tonquil {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds coarseFrom{20};

void stop(QTimer& timer) {
    timer.stop();
}

void stop(QSocketNotifier& notifier) {
    notifier.setEnabled(false);
}

// The loop's context owns the source; this handle ends it, unless the loop was destroyed first.
template <typename Source>
class SourceHandle final : public RunLoop::Handle {
 public:
    explicit SourceHandle(Source* source) : _source(source) {}
    ~SourceHandle() override {
        if (_source) {
            stop(*_source);
            // Qt keeps the callable it is calling alive until that returns, but not the object
            // whose event it is handling.
            _source->disconnect();
            _source->deleteLater();
        }
    }
    SourceHandle(const SourceHandle&) = delete;
    SourceHandle& operator=(const SourceHandle&) = delete;

 private:
    QPointer<Source> _source;
};

// Without an application a source cannot be registered yet; the application's first events do it
// then.
template <typename Start>
void startSource(QObject& source, Start start) {
    if (QAbstractEventDispatcher::instance() != nullptr) {
        start();
    } else {
        QMetaObject::invokeMethod(&source, std::move(start), Qt::QueuedConnection);
    }
}

std::unique_ptr<RunLoop::Handle> startTimer(QObject& context, milliseconds time, bool isSingleShot,
                                            RunLoop::Call call) {
    auto* const timer = new QTimer(&context);
    timer->setTimerType(time < coarseFrom ? Qt::PreciseTimer : Qt::CoarseTimer);
    timer->setSingleShot(isSingleShot);
    QObject::connect(timer, &QTimer::timeout, &context, std::move(call));
    // Qt counts milliseconds as an int.
    const auto longest = milliseconds(std::numeric_limits<int>::max());
    startSource(*timer, [timer, time = std::min(time, longest)] { timer->start(time); });
    return std::make_unique<SourceHandle<QTimer>>(timer);
}

// Qt owns posted events, handles them in order, and drops those of a destroyed object.
class PostedCall final : public QEvent {
 public:
    explicit PostedCall(RunLoop::Call call) : QEvent(QEvent::User), _call(std::move(call)) {}
    void run() const { _call(); }

 private:
    RunLoop::Call _call;
};

class Context final : public QObject {
    bool event(QEvent* event) override {
        if (const auto* const posted = dynamic_cast<PostedCall*>(event)) {
            posted->run();
            return true;
        }
        return QObject::event(event);
    }
};

}  // namespace

QtRunLoop::QtRunLoop() : _context(std::make_unique<Context>()) {}

std::unique_ptr<RunLoop::Handle> QtRunLoop::callOnce(milliseconds delay, Call call) {
    return startTimer(*_context, std::max(delay, milliseconds(0)), true, std::move(call));
}

std::unique_ptr<RunLoop::Handle> QtRunLoop::callRepeatedly(milliseconds interval, Call call) {
    return startTimer(*_context, std::max(interval, milliseconds(1)), false, std::move(call));
}

std::unique_ptr<RunLoop::Handle> QtRunLoop::watchReadable(int descriptor, Call call) {
    auto* const notifier = new QSocketNotifier(QSocketNotifier::Read, _context.get());
    QObject::connect(notifier, &QSocketNotifier::activated, _context.get(), std::move(call));
    startSource(*notifier, [notifier, descriptor] {
        notifier->setSocket(descriptor);
        notifier->setEnabled(true);
    });
    return std::make_unique<SourceHandle<QSocketNotifier>>(notifier);
}

void QtRunLoop::post(Call call) {
    QCoreApplication::postEvent(_context.get(), new PostedCall(std::move(call)));
}

}  // namespace tonquil
