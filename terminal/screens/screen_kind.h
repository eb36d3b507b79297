// A screen of the terminal's own before it is opened: its number, its name, and how it is made.
#pragma once

#include <functional>
#include <vector>

#include "terminal/screens/own_screen.h"
#include "terminal/screens/workplace.h"

namespace jogeon::terminal {

struct ScreenKind {
    QString number;    // "0615"
    const char* name;  // the source text of the menu's line, in the context "jogeon::terminal::ScreenKind"
    std::function<OwnScreen*(const Workplace&, QWidget* parent)> make;
};

// Makes a screen of a class.
template <typename Screen>
OwnScreen* MakeScreen(const Workplace& workplace, QWidget* parent) {
    return new Screen(workplace, parent);
}

// The screens that the terminal has, in the order of its menu.
std::vector<ScreenKind> OwnScreens();

}  // namespace jogeon::terminal
