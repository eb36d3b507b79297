#include "terminal/screen_module.h"

#include <QCoreApplication>
#include <QDir>

namespace jogeon::terminal {

ScreenModule::ScreenModule(const QString& path) : library_(path) {
    library_.setLoadHints(QLibrary::PreventUnloadHint);
    if (!library_.load()) throw ModuleError(library_.errorString().toStdString());
    Resolve(CreateScreen, "CreateScreen");
    Resolve(DestroyScreen, "DestroyScreen");
    Resolve(GetLastData, "GetLastData");
    Resolve(SetLastData, "SetLastData");
    Resolve(SetColorChange, "SetColorChange");
    Resolve(SetFocusCombo, "SetFocusCombo");
}

QString ScreenModule::DefaultPath() {
    const QDir programs(QCoreApplication::applicationDirPath());
    return QDir::cleanPath(programs.filePath("../lib/" JOGEON_SCREEN0150_FILE));
}

template <typename Function>
void ScreenModule::Resolve(Function& function, const char* name) {
    function = reinterpret_cast<Function>(library_.resolve(name));
    if (!function) throw ModuleError(library_.fileName().toStdString() + " has no function " + name);
}

}  // namespace jogeon::terminal
