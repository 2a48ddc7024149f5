// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

namespace tonquil {

/// The languages that texts are translated to besides English, which they are written in: "de".
[[nodiscard]] QStringList translatedLanguages();

/// The one of `available` that a person reads best; empty for English, and where there is none.
/// `wanted` has the person's languages, the best first, as in `QLocale::uiLanguages`: "de-AT". A
/// language counts wherever it is spoken and however it is written.
[[nodiscard]] QString chosenLanguage(const QStringList& wanted, const QStringList& available);

/// Translates the program's texts, and the toolkit's where the desktop has them translated.
class Language {
 public:
    /// Installs the translations of a language from `translatedLanguages`; texts stay English for
    /// an empty one. Numbers keep to their own rules. Windows that are there already do not change.
    /// There must be an application object.
    explicit Language(const QString& language);

 private:
    QTranslator _own;
    QTranslator _toolkits;
};

}  // namespace tonquil
