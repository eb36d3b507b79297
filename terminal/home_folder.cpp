#include "terminal/home_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

namespace jogeon::terminal {
namespace {

QString Variable(const char* name) {
    return QString::fromLocal8Bit(qgetenv(name));
}

// The data files as they were built or installed: beside the program's folder, or where a variable says.
QString ShippedData() {
    if (QString told = Variable("JOGEON_HOME_DATA"); !told.isEmpty()) return told;
    const QDir programs(QCoreApplication::applicationDirPath());
    for (const char* candidate : {"../home", "../share/jogeon/home"}) {
        if (QDir(programs.filePath(candidate)).exists()) return QDir::cleanPath(programs.filePath(candidate));
    }
    throw HomeError("the data files that come with jogeon are missing beside " +
                    programs.path().toStdString());
}

QByteArray ReadAll(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Replace(const QString& path, const QByteArray& content) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit()) {
        throw HomeError(path.toStdString() + ": can't be written: " + file.errorString().toStdString());
    }
}

void MakeFolder(const QString& path) {
    if (!QDir().mkpath(path)) throw HomeError(path.toStdString() + ": can't be made");
}

void LayDown(const QString& shipped, const QString& home, bool replaceOld) {
    QDirIterator files(shipped, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = QDir(home).filePath(QDir(shipped).relativeFilePath(source));
        if (QFile::exists(target) && !replaceOld) continue;
        const QByteArray content = ReadAll(source);
        if (QFile::exists(target) && ReadAll(target) == content) continue;
        MakeFolder(QFileInfo(target).path());
        Replace(target, content);
    }
}

}  // namespace

HomeFolder PrepareHome(const QString& chosen) {
    HomeFolder folder;
    const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/home";
    folder.path = QDir::cleanPath(QDir(chosen.isEmpty() ? own : chosen).absolutePath());
    folder.configuration = chosen.isEmpty() ? Variable("JOGEON_CONFIG") : folder.path + "/Config";
    if (folder.configuration.isEmpty()) {
        folder.configuration = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    }
    MakeFolder(folder.path + "/User");
    MakeFolder(folder.configuration);
    LayDown(ShippedData(), folder.path, chosen.isEmpty());
    Replace(folder.configuration + "/Norvik.ini", "[Path]\r\nHTSPATH=" + folder.path.toLocal8Bit() + "\r\n");
    return folder;
}

}  // namespace jogeon::terminal
