// The language of the terminal's own windows. Their texts are Korean in the source; English is a translation
// that the program carries. The texts of screen 0150 are the same in both.
#pragma once

#include <QString>
#include <QTranslator>
#include <optional>

namespace jogeon::terminal {

enum class Language { Korean, English };

// "ko" and "en".
QString NameOf(Language language);
std::optional<Language> LanguageOf(const QString& name);

// Windows that are built while it lives are in its language.
class LanguageInUse {
public:
    explicit LanguageInUse(Language language);
    ~LanguageInUse();

    LanguageInUse(const LanguageInUse&) = delete;
    LanguageInUse& operator=(const LanguageInUse&) = delete;

    Language Current() const { return language_; }

private:
    const Language language_;
    QTranslator own_;
    QTranslator qts_;  // of Qt's own dialogs, where the system has it
};

}  // namespace jogeon::terminal
