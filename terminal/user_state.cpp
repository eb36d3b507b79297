#include "terminal/user_state.h"

#include <cstdio>

namespace jogeon::terminal {
namespace {

using namespace std::chrono_literals;

constexpr int kSaveTimer = 1;
constexpr auto kSaveDelay = 2s;

}  // namespace

QString UserStatePath(const QString& configuration, const QString& user) {
    return configuration + "/terminal_" + user + ".ini";
}

UserState::UserState(const QString& file, host::Clock& clock) : clock_(clock) {
    if (file.isEmpty()) return;
    file_ = std::make_unique<QSettings>(file, QSettings::IniFormat);
    if (file_->status() == QSettings::NoError) return;
    std::fprintf(stderr, "jogeon: %s: can't be read; windows start as on the first day\n",
                 file.toUtf8().constData());
    file_->clear();
}

UserState::~UserState() {
    clock_.Forget(*this);
}

QString UserState::Choice(const QString& key) const {
    return file_ ? file_->value(key).toString() : QString();
}

void UserState::Choose(const QString& key, const QString& value) {
    if (!file_) return;
    file_->setValue(key, value);
    SaveSoon();
}

// Changes that go on and on don't put it off.
void UserState::SaveSoon() {
    if (!file_ || saveDue_) return;
    saveDue_ = true;
    clock_.SetTimer(*this, kSaveTimer, kSaveDelay);
}

void UserState::Save() {
    clock_.KillTimer(*this, kSaveTimer);
    saveDue_ = false;
    if (!file_) return;
    emit Saving(*file_);
    file_->sync();
}

void UserState::OnTimer(int) {
    Save();
}

}  // namespace jogeon::terminal
