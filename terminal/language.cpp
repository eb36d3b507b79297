#include "terminal/language.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace jogeon::terminal {

QString NameOf(Language language) {
    return language == Language::English ? QStringLiteral("en") : QStringLiteral("ko");
}

std::optional<Language> LanguageOf(const QString& name) {
    for (const Language language : {Language::Korean, Language::English}) {
        if (name == NameOf(language)) return language;
    }
    return std::nullopt;
}

LanguageInUse::LanguageInUse(Language language) : language_(language) {
    if (language == Language::English && own_.load(QStringLiteral(":/translations/jogeon_en.qm")))
        QCoreApplication::installTranslator(&own_);
    if (qts_.load("qtbase_" + NameOf(language), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&qts_);
}

LanguageInUse::~LanguageInUse() {
    QCoreApplication::removeTranslator(&own_);
    QCoreApplication::removeTranslator(&qts_);
}

}  // namespace jogeon::terminal
