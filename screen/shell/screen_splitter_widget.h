// The two panes side by side: the tree on the left, the condition screen on the right.
//
// Remembers the left pane's width while it is hidden, and tells the host frame the size the screen needs.
#pragma once

#include <QSplitter>
#include <string>

#include "screen/host/services.h"
#include "screen/settings/screen_settings.h"

namespace jogeon {

class ScreenSplitter : public QSplitter {
    Q_OBJECT

public:
    static constexpr int kRightPaneWidth = 400;  // pixels, as all of these
    static constexpr int kRightPaneMinimum = 100;
    static constexpr int kBarWidth = 6;
    static constexpr int kScreenWidth = 585;  // beside the left pane
    static constexpr int kScreenHeight = 548;
    static constexpr int kWidestMinimum = 764;  // floor of the second size message

    // Uses the host's installed services.
    explicit ScreenSplitter(QWidget* parent);

    // Puts the two panes in place at their ideal widths.
    void SetPanes(QWidget& left, QWidget& right);

    int LeftPaneWidth() const { return leftPaneWidth_; }
    bool LeftPaneHidden() const { return leftPaneHidden_; }

    // Tells the host frame the size that this screen needs, unless it has it already and `force` is not set.
    void ReportSize(bool force);

    // What the bar does on a double click: the left pane goes back to its first width.
    void ResetLeftPane();

protected:
    bool event(QEvent* event) override;
    QSplitterHandle* createHandle() override;

private:
    void ShowLeftPane(bool shown);
    void SetLeftWidth(int width);
    void SaveWidth(const std::string& key) const;
    void RestoreWidth(const std::string& key);

    host::LinkStore& links_;
    host::WindowHandle hostFrameWindow_ = 0;
    bool leftPaneHidden_ = false;
    int leftPaneWidth_ = kLeftPaneWidth;
};

}  // namespace jogeon
