#include "terminal/watch/watch_run.h"

#include <algorithm>
#include <optional>

namespace jogeon::terminal {
namespace {

constexpr int kBatch = 250;             // milliseconds
constexpr qint64 kLongestBatch = 1000;  // a machine that slept doesn't miss the day
constexpr qint64 kSignOfLife = 60'000;  // how often a paused watch tells the service that it is wanted

}  // namespace

struct WatchRun::Opening {
    std::shared_ptr<OpenWatch> watch;  // null: see why
    std::string why;
};

struct WatchRun::Answer {
    std::optional<service::WatchNews> news;  // none: see why
    std::string why;
};

WatchRun::WatchRun(const Workplace& workplace, QObject* parent) : QObject(parent), workplace_(workplace) {
    timer_.setInterval(kBatch);
    connect(&timer_, &QTimer::timeout, this, &WatchRun::OnTick);
}

void WatchRun::Begin(const std::string& conditionSet) {
    watch_.reset();
    asking_ = false;
    timer_.stop();
    const int begun = ++begun_;
    SetState(State::Opening);
    InBackground(
        workplace_, *this,
        [workplace = workplace_, conditionSet]() -> Opening {
            try {
                return {std::make_shared<OpenWatch>(workplace, conditionSet), {}};
            } catch (const std::exception& error) {
                return {nullptr, error.what()};
            }
        },
        [this, begun](const Opening& opening) { OnOpened(begun, opening); });
}

void WatchRun::OnOpened(int begun, const Opening& opening) {
    if (begun != begun_) return;  // another set has been asked for since
    if (!opening.watch) {
        Fail(opening.why);
        return;
    }
    watch_ = opening.watch;
    emit Opened(watch_->Start());
    sinceAsked_.start();
    timer_.start();
    SetState(State::Running);
    Ask(0);  // the opening itself
}

void WatchRun::SetRunning(bool running) {
    if (state_ != State::Running && state_ != State::Paused) return;
    sinceAsked_.restart();  // what passed while it stood still doesn't count
    SetState(running ? State::Running : State::Paused);
}

bool WatchRun::Alive() const {
    return state_ == State::Opening || state_ == State::Running || state_ == State::Paused;
}

void WatchRun::OnTick() {
    if (asking_) return;
    if (state_ == State::Running)
        Ask(static_cast<int>(std::min(sinceAsked_.elapsed(), kLongestBatch)) * speed_);
    if (state_ == State::Paused && sinceAsked_.elapsed() > kSignOfLife) Ask(0);
}

void WatchRun::Ask(int milliseconds) {
    asking_ = true;
    sinceAsked_.restart();
    InBackground(
        workplace_, *this,
        [watch = watch_, milliseconds]() -> Answer {
            try {
                return {watch->Advance(milliseconds), {}};
            } catch (const std::exception& error) {
                return {std::nullopt, error.what()};
            }
        },
        [this, watch = watch_](const Answer& answer) { OnAnswer(watch, answer); });
}

void WatchRun::OnAnswer(const std::shared_ptr<OpenWatch>& asked, const Answer& answer) {
    if (asked != watch_) return;
    asking_ = false;
    if (!answer.news) {
        Fail(answer.why);
        return;
    }
    emit NewsCame(*answer.news);
    if (asked == watch_ && answer.news->over) {
        watch_.reset();
        timer_.stop();
        SetState(State::Over);
    }
}

void WatchRun::Fail(const std::string& why) {
    watch_.reset();
    timer_.stop();
    SetState(State::Failed);
    emit Refused(QString::fromStdString(why));
}

void WatchRun::SetState(State state) {
    if (state_ == state) return;
    state_ = state;
    emit StateChanged();
}

}  // namespace jogeon::terminal
