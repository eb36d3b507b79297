#include "terminal/home_folder.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QStandardPaths>

#include "screen/files/atomic_file.h"

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
    if (!WriteFileAtomically(QFile::encodeName(path).toStdString(), content.toStdString())) {
        throw HomeError(path.toStdString() + ": can't be written");
    }
}

void MakeFolder(const QString& path) {
    if (!QDir().mkpath(path)) throw HomeError(path.toStdString() + ": can't be made");
}

// Copies what is missing or differs; the files that differ and stay are returned.
QStringList LayDown(const QString& shipped, const QString& home, bool replaceOld) {
    QStringList kept;
    QDirIterator files(shipped, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = QDir(home).filePath(QDir(shipped).relativeFilePath(source));
        const QByteArray content = ReadAll(source);
        if (QFileInfo::exists(target)) {
            if (ReadAll(target) == content) continue;
            if (!replaceOld) {
                kept.append(target);
                continue;
            }
        }
        MakeFolder(QFileInfo(target).path());
        Replace(target, content);
    }
    return kept;
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
    folder.kept = LayDown(ShippedData(), folder.path, chosen.isEmpty());
    Replace(folder.configuration + "/Norvik.ini", "[Path]\r\nHTSPATH=" + folder.path.toLocal8Bit() + "\r\n");
    return folder;
}

}  // namespace jogeon::terminal
