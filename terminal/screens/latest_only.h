// Questions of one kind asked in the background, one at a time: while one is under way, only the newest
// waits.
//
// Relies on InBackground, and lives as long as the receiver does. Whatever is asked on end, the service is
// asked twice at most, and only the answer to the newest question arrives.
#pragma once

#include <exception>
#include <functional>
#include <optional>
#include <utility>

#include "terminal/screens/workplace.h"

namespace jogeon::terminal {

template <typename Question, typename Answer>
class LatestOnly {
public:
    // Asks the service, on a thread of the workplace; touches nothing of the receiver, and may throw what a
    // service throws.
    using Find = std::function<Answer(const Question&)>;

    // Takes the answer on the receiver's thread; none if the service couldn't tell.
    using Take = std::function<void(const std::optional<Answer>&)>;

    LatestOnly(const Workplace& workplace, QObject& receiver, Find find, Take take)
        : workplace_(workplace), receiver_(receiver), find_(std::move(find)), take_(std::move(take)) {}

    // False, and nothing happens, if this is the newest question already, be it answered or on its way. One
    // that the service couldn't answer is asked again.
    bool Ask(const Question& question) {
        if (newest_ == question) return false;
        newest_ = question;
        answered_ = false;
        if (!underWay_) Begin();
        return true;
    }

    // No answer is wanted any more.
    void Forget() { newest_.reset(); }

    bool Waiting() const { return newest_ && !answered_; }

private:
    void Begin() {
        underWay_ = newest_;
        const auto find = [find = find_, question = newest_]() -> std::optional<Answer> {
            try {
                return find(*question);
            } catch (const std::exception&) {
                return std::nullopt;
            }
        };
        InBackground(workplace_, receiver_, find,
                     [this](const std::optional<Answer>& answer) { OnAnswer(answer); });
    }

    void OnAnswer(const std::optional<Answer>& answer) {
        const std::optional<Question> asked = std::exchange(underWay_, std::nullopt);
        if (!newest_) return;
        if (newest_ != asked) return Begin();
        answered_ = true;
        if (!answer) newest_.reset();
        take_(answer);
    }

    const Workplace workplace_;
    QObject& receiver_;
    const Find find_;
    const Take take_;
    std::optional<Question> newest_;
    std::optional<Question> underWay_;
    bool answered_ = false;  // the newest
};

}  // namespace jogeon::terminal
