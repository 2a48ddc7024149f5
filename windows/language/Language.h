// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

namespace tonquil {

/// The languages that texts are translated to, apart from English, their original language: "de".
[[nodiscard]] QStringList translatedLanguages();

/// The user's most preferred of the `available` languages; empty for English, or if none matches.
/// `wanted` has the user's languages, most preferred first, as in `QLocale::uiLanguages`: "de-AT".
/// Country and script are ignored.
[[nodiscard]] QString chosenLanguage(const QStringList& wanted, const QStringList& available);

/// Translates the program's texts, and Qt's own where the desktop has translations for them.
class Language {
 public:
    /// Installs the translations for one of `translatedLanguages`; texts stay English if it is
    /// empty. Number formats do not change, nor do existing windows. Needs an application object.
    explicit Language(const QString& language);

 private:
    QTranslator _own;
    QTranslator _toolkits;
};

}  // namespace tonquil
