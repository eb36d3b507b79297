// A screen's module: the shared library, loaded, with its exported functions by name.
#pragma once

#include <QLibrary>
#include <stdexcept>

#include "screen/shell/exports.h"

namespace jogeon::terminal {

// The module can't be loaded, or a function is missing from it; in one line for the user.
class ModuleError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Loads on construction, throws ModuleError. The library stays loaded until the process ends, since Qt may
// hold objects whose code lies in it.
class ScreenModule {
public:
    explicit ScreenModule(const QString& path);

    // The module of screen 0150 beside this program.
    static QString DefaultPath();

    decltype(&::CreateScreen) CreateScreen;
    decltype(&::DestroyScreen) DestroyScreen;
    decltype(&::GetLastData) GetLastData;
    decltype(&::SetLastData) SetLastData;
    decltype(&::SetColorChange) SetColorChange;
    decltype(&::SetFocusCombo) SetFocusCombo;

private:
    template <typename Function>
    void Resolve(Function& function, const char* name);

    QLibrary library_;
};

}  // namespace jogeon::terminal
