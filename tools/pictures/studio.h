// The real terminal on the generated market, worked as by a user's hand, and the camera before it.
//
// Whatever can't be found or doesn't come in time is an exception.
#pragma once

#include <QDialog>
#include <QPixmap>
#include <functional>
#include <memory>

#include "screen/host/services.h"
#include "terminal/screen_driver.h"
#include "terminal/terminal.h"

namespace jogeon::pictures {

class Studio : private host::Questions {
public:
    // What is done with a dialog while it stands open; whether the user then agrees to it.
    using Pose = std::function<bool(QDialog&)>;

    // `home` is where the terminal keeps its files.
    Studio(const QString& user, const QString& home, const QString& theme, const QString& language);
    ~Studio() override;

    terminal::Terminal& Terminal() { return *terminal_; }
    QWidget& Window() { return terminal_->Window(); }
    QWidget& Frame() { return terminal_->Window().Frame(); }

    // A child of the window by its object name.
    template <typename Widget = QWidget>
    Widget& At(const QString& name) {
        return Found(Window().findChild<Widget*>(name), name);
    }
    template <typename Widget = QWidget>
    Widget& At(int control) {
        return Found(Frame().findChild<Widget*>(QString::number(control)), QString::number(control));
    }

    static constexpr char kSet[] = "정배열 눌림목";  // has brackets, and stocks that match
    static constexpr int kNew = 21021, kSave = 21024, kGrid = 21104;

    void Press(int control);
    void OpenSet(const QString& name);
    void Search();
    void OpenAndSearch();
    void ClickRow(int row);

    // Saves a small set under each name.
    void SaveSets(std::initializer_list<const char*> names);

    // Shows an indicator of the tree in the panel; adds it as a condition.
    void Pick(const QString& indicator);
    void Add(const QString& indicator);

    // Opens a screen of the terminal in its dock.
    terminal::OwnScreen& OpenScreen(const QString& number);

    void OnDialogs(Pose pose) { pose_ = std::move(pose); }

    // The file that is chosen where one is asked for.
    void OnFiles(const QString& file) { file_ = file; }

    // What is done with a box of a question before it is answered by no. Without this none is shown.
    void OnBoxes(std::function<void(QWidget&)> pose) { boxPose_ = std::move(pose); }

    // Until all is answered and drawn.
    void Settle();
    void WaitUntil(const std::function<bool()>& reached);

    // The window with a menu or a list that stands open over it.
    QPixmap WithPopup(QWidget& shown, QWidget& popup) const;

private:
    template <typename Widget>
    static Widget& Found(Widget* widget, const QString& name) {
        if (!widget) throw std::runtime_error("no control " + name.toStdString());
        return *widget;
    }

    host::Answer Ask(const host::Box& box) override;
    bool Run(const std::string& dialog, void* object) override;
    std::optional<std::filesystem::path> AskSavePath(const host::FileQuestion& question) override;

    Pose pose_;
    QString file_;
    std::function<void(QWidget&)> boxPose_;
    std::unique_ptr<terminal::Terminal> terminal_;
};

}  // namespace jogeon::pictures
