// What a user's terminal remembers from one session to the next: windows, theme, language, and what his
// screens keep.
//
// An ini file for each user. It is written a moment after something changed and at the end, each
// time as a whole or not at all. A file that can't be read counts as empty.
#pragma once

#include <QObject>
#include <QSettings>
#include <QString>
#include <memory>

#include "screen/host/services.h"

namespace jogeon::terminal {

class UserState : public QObject, public host::TimerSink {
    Q_OBJECT

public:
    // With an empty `file` nothing is read or kept. The clock outlives this object.
    UserState(const QString& file, host::Clock& clock);
    ~UserState() override;

    // A kept choice; empty if there is none.
    QString Choice(const QString& key) const;
    void Choose(const QString& key, const QString& value);

    // The file's content; null when nothing is kept.
    const QSettings* Kept() const { return file_.get(); }
    QSettings* Kept() { return file_.get(); }

    // Something has changed that Saving's listeners know.
    void SaveSoon();
    void Save();

    void OnTimer(int id) override;

signals:
    // Whoever has something to keep writes it now.
    void Saving(QSettings& file);

private:
    host::Clock& clock_;
    std::unique_ptr<QSettings> file_;
    bool saveDue_ = false;
};

// The file of a user in the folder of the configuration.
QString UserStatePath(const QString& configuration, const QString& user);

}  // namespace jogeon::terminal
