// An own screen that only notes what it is told.
#pragma once

#include <string>
#include <vector>

#include "terminal/screens/screen_kind.h"

namespace jogeon::terminal {

class FakeScreen : public OwnScreen {
public:
    FakeScreen(QString number, QWidget* parent) : OwnScreen(parent), number_(std::move(number)) {
        setFocusPolicy(Qt::StrongFocus);
    }

    QString Number() const override { return number_; }
    QString Title() const override { return "가짜" + choice; }
    void OnOpened(bool linked) override { opened.push_back(linked); }
    void OnTagChanged(const std::string& mainKey, const std::string& tag) override {
        tags.push_back(mainKey + "/" + tag);
        if (answers) emit TagSet(mainKey, tag);
    }
    void OnThemeChanged() override { themeWindow = palette().color(QPalette::Window); }
    void SaveState(QSettings& file) const override { file.setValue("choice", choice); }
    void RestoreState(const QSettings& file) override { choice = file.value("choice").toString(); }
    QSize sizeHint() const override { return {150, 200}; }

    // As a user would, in a combo or the like.
    void Choose(const QString& made) {
        choice = made;
        emit TitleChanged();
    }

    std::vector<bool> opened;
    std::vector<std::string> tags;
    QString choice;
    QColor themeWindow;    // of its palette when it heard of a theme
    bool answers = false;  // sets each tag again that it hears of

private:
    const QString number_;
};

inline ScreenKind FakeKind(const char* number, const char* name) {
    return {QString::fromLatin1(number), name, [number](const Workplace&, QWidget* parent) {
                return new FakeScreen(QString::fromLatin1(number), parent);
            }};
}

inline std::vector<ScreenKind> FakeKinds() {
    return {FakeKind("0130", "관심"), FakeKind("0156", "감시"), FakeKind("0615", "차트")};
}

}  // namespace jogeon::terminal
