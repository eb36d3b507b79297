// Shows what CFBGrid can do.
//
//   fb_grid_gallery                      opens the window
//   fb_grid_gallery --pictures FOLDER    saves a picture of every page there and ends; needs no display
//   fb_grid_gallery --dark               in dark colours, whatever the desktop's are
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFontDatabase>
#include <QPalette>
#include <QStyleFactory>
#include <iostream>

#include "gallery_window.h"

namespace {

// A font that has Korean letters, if there is one that we know.
void ChooseFont() {
    for (const char* family : {"Malgun Gothic", "Apple SD Gothic Neo", "NanumGothic", "Noto Sans CJK KR"}) {
        if (!QFontDatabase::hasFamily(family)) continue;
        QApplication::setFont(QFont(family, 9));
        return;
    }
}

QPalette DarkPalette() {
    QPalette dark(QColor(48, 52, 57), QColor(40, 43, 47));
    dark.setColor(QPalette::Base, QColor(30, 32, 36));
    dark.setColor(QPalette::Highlight, QColor(58, 110, 180));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

int SavePictures(GalleryWindow& window, const QDir& folder) {
    if (!folder.mkpath(".")) {
        std::cerr << "fb_grid_gallery: can't make the folder " << folder.path().toStdString() << '\n';
        return 1;
    }
    for (int index = 0; index < static_cast<int>(Pages().size()); ++index) {
        window.ShowPage(index);
        QApplication::processEvents();
        window.Page(index).Pose();
        QApplication::processEvents();
        const QString name = "grid_" + window.Page(index).File().chopped(qstrlen("_page.cpp")) + ".png";
        if (!window.grab().save(folder.filePath(name))) {
            std::cerr << "fb_grid_gallery: can't write " << folder.filePath(name).toStdString() << '\n';
            return 1;
        }
    }
    return 0;
}

struct Options {
    QString pictures;  // the folder; empty to open the window
    bool dark = false;
};

// Read before there is a window system to connect to: help and pictures need none.
Options ReadOptions(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    parser.addOption({"pictures", "Saves a picture of every page and ends.", "folder"});
    parser.addOption({"dark", "Uses dark colours."});
    parser.process(application);
    return {parser.value("pictures"), parser.isSet("dark")};
}

}  // namespace

int main(int argc, char** argv) {
    const Options options = ReadOptions(argc, argv);
    const bool needsDisplay = options.pictures.isEmpty();
    if (!needsDisplay && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName("CFBGrid gallery");
    if (options.dark) {
        QApplication::setStyle(QStyleFactory::create("Fusion"));
        QApplication::setPalette(DarkPalette());
    }
    ChooseFont();
    GalleryWindow window;
    window.show();
    return needsDisplay ? QApplication::exec() : SavePictures(window, QDir(options.pictures));
}
