#include "shown_code.h"

#include <QFile>
#include <QStringList>

QString ShownCode(const QString& file) {
    QFile source(":/pages/" + file);
    if (!source.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    QStringList shown;
    bool within = false;
    qsizetype indentation = 0;
    for (const QString& line : QString::fromUtf8(source.readAll()).split('\n')) {
        const QString text = line.trimmed();
        if (text == "// --- shown" || text == "// --- to here") {
            within = text == "// --- shown";
            indentation = line.indexOf('/');
            if (within && !shown.isEmpty()) shown.append(QString());
        } else if (within) {
            shown.append(text.isEmpty() ? QString() : line.mid(indentation));
        }
    }
    return shown.join('\n');
}
