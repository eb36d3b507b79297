// A screen that the terminal brings itself: chart, watch, interest groups.
//
// It lives in a dock of the main window, which opens it by its number when another screen asks for it, and
// tells it of shared tags that were changed.
#pragma once

#include <QSettings>
#include <QString>
#include <QWidget>
#include <string>

namespace jogeon::terminal {

class OwnScreen : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    virtual QString Number() const = 0;  // "0615"
    virtual QString Title() const = 0;   // in the user's language

    // Someone asked for the screen; with `linked`, the shared tags name the stock to show.
    virtual void OnOpened(bool linked) = 0;

    // Another screen has changed a shared tag.
    virtual void OnTagChanged(const std::string& mainKey, const std::string& tag) = 0;

    // The service was away, or has another market: what it said before may not be so any more.
    virtual void OnServiceRenewed() {}

    // The colours of screen/palette are others now.
    virtual void OnThemeChanged() {}

    // What the user has chosen in the screen, kept from one session to the next.
    virtual void SaveState(QSettings&) const {}
    virtual void RestoreState(const QSettings&) {}

signals:
    // This screen has set a shared tag that the others should hear of.
    void TagSet(const std::string& mainKey, const std::string& tag);

    // This screen wants another one to open, with the stock that the shared tags name if `linked`.
    void ScreenAsked(const QString& number, bool linked);

    // The title's text or the screen's state in it has changed.
    void TitleChanged();
};

}  // namespace jogeon::terminal
