// Takes the pictures of the documents: pictures FOLDER [NAME...]
//
// The light ones go to FOLDER, the dark ones to FOLDER/dark. With names only these are taken. The market is
// the generated one, so a picture changes when the screen does.
#include <QApplication>
#include <QDir>
#include <cstdio>
#include <exception>

#include "terminal/look/application_look.h"
#include "tools/pictures/album.h"

namespace {

using namespace jogeon::pictures;

constexpr int kFailure = 2;

int TakeAll(const QString& folder, const QStringList& wanted) {
    for (const char* theme : {"light", "dark"}) {
        const QString place = QString::fromLatin1(theme) == "light" ? folder : folder + "/dark";
        if (!QDir().mkpath(place)) throw std::runtime_error(place.toStdString() + ": can't be made");
        TakePictures(theme, place, wanted);
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    jogeon::terminal::SetApplicationLook();
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr, "usage: pictures FOLDER [NAME...]\n");
        return kFailure;
    }
    try {
        return TakeAll(arguments[1], arguments.mid(2));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "pictures: %s\n", error.what());
        return kFailure;
    }
}
