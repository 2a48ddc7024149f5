// SPDX-License-Identifier: MIT
#include "windows/language/Language.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>

// Outside any namespace, as Qt requires. A static library's resources are not registered before
// this.
static void initializeResources() {
    Q_INIT_RESOURCE(translations);
}

namespace tonquil {

namespace {

constexpr QLatin1String folder(":/translations");
constexpr QLatin1String prefix("tonquil_");
constexpr QLatin1String suffix(".qm");

}  // namespace

QStringList translatedLanguages() {
    initializeResources();
    QStringList languages;
    for (const QString& file : QDir(folder).entryList({prefix + u'*' + suffix})) {
        languages.append(file.sliced(prefix.size()).chopped(suffix.size()));
    }
    return languages;
}

// Qt's own selection would skip English, which has no file, and give a user who prefers English the
// next language.
QString chosenLanguage(const QStringList& wanted, const QStringList& available) {
    for (const QString& each : wanted) {
        QString language = each.section(u'-', 0, 0).section(u'_', 0, 0);
        if (language == QStringLiteral("en") || language == QStringLiteral("C")) {
            return {};
        }
        if (available.contains(language)) {
            return language;
        }
    }
    return {};
}

Language::Language(const QString& language) {
    if (language.isEmpty()) {
        return;
    }
    initializeResources();
    // The translator installed last is searched first.
    if (_toolkits.load(QStringLiteral("qtbase_") + language,
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&_toolkits);
    }
    if (_own.load(prefix + language, folder)) {
        QCoreApplication::installTranslator(&_own);
    }
}

}  // namespace tonquil
