#include "terminal/kept_bytes.h"

#include <QCryptographicHash>

namespace jogeon::terminal {
namespace {

constexpr int kDigestSize = 8;

QByteArray Digest(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).first(kDigestSize);
}

}  // namespace

void KeepBytes(QSettings& file, const QString& key, const QByteArray& bytes) {
    file.setValue(key, Digest(bytes) + bytes);
}

QByteArray KeptBytes(const QSettings& file, const QString& key) {
    const QByteArray kept = file.value(key).toByteArray();
    const QByteArray bytes = kept.mid(kDigestSize);
    return kept.startsWith(Digest(bytes)) ? bytes : QByteArray();
}

}  // namespace jogeon::terminal
