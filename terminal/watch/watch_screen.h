// Screen 0156, 실시간 조건검색: watches the condition set that screen 0150 hands over, over a day of the
// market.
//
// Relies on the shared tags for the set and its description, and on the service for the watch itself, which
// lives as long as the screen and its set do. A day that is replayed is called so wherever its date stands.
#pragma once

#include <QLabel>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QStackedLayout>

#include "terminal/screens/own_screen.h"
#include "terminal/screens/workplace.h"
#include "terminal/watch/event_model.h"
#include "terminal/watch/match_model.h"
#include "terminal/watch/watch_head.h"
#include "terminal/watch/watch_run.h"
#include "terminal/watch/watch_table.h"

namespace jogeon::terminal {

class WatchScreen : public OwnScreen {
    Q_OBJECT

public:
    WatchScreen(const Workplace& workplace, QWidget* parent);

    QString Number() const override { return QStringLiteral("0156"); }
    QString Title() const override;
    void OnOpened(bool linked) override;
    void OnTagChanged(const std::string& mainKey, const std::string& tag) override;
    void OnThemeChanged() override;
    void SaveState(QSettings& file) const override;
    void RestoreState(const QSettings& file) override;
    QSize sizeHint() const override { return {520, 640}; }

private:
    QWidget* BuildPage();
    void SetUpTables();
    void Wire();

    void Watch(const std::string& conditionSet);
    void Restart();
    void ShowDescription();
    void OnNews(const service::WatchNews& news);
    void OnState();
    void ShowCounts();
    void Announce(const std::string& code);

    template <typename Model>
    void AnnounceFrom(WatchTable& table, const Model& model, const QSortFilterProxyModel* sorted);

    const Workplace workplace_;
    WatchRun run_;
    MatchModel matches_;
    QSortFilterProxyModel sorted_;
    EventModel events_;
    QTimer fade_;

    QStackedLayout* const pages_;
    WatchHead* const head_;
    QSplitter* const split_;
    WatchTable* const matchTable_;
    WatchTable* const eventTable_;
    QLabel* const counts_;

    std::string watched_;  // the set's bytes, empty before the first
    QString day_;          // for the title
    qint64 ticks_ = 0;
    qint64 entered_ = 0;
    qint64 left_ = 0;
};

}  // namespace jogeon::terminal
