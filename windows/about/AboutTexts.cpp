// SPDX-License-Identifier: MIT
#include "windows/about/AboutTexts.h"

#include <QFile>
#include <QFontDatabase>
#include <QStringDecoder>
#include <QTextCursor>
#include <QTextDocument>

#include "foundation/TranslatableText.h"
#include "windows/alerts/Localisation.h"

namespace tonquil {

namespace {

constexpr std::string_view table = "KVAboutBox";

/// Selects the first occurrence of a word in a document.
QTextCursor placeOf(QTextDocument& document, const QString& word) {
    const auto start = static_cast<int>(document.toPlainText().indexOf(word));
    QTextCursor place(&document);
    place.setPosition(start);
    place.setPosition(start + static_cast<int>(word.size()), QTextCursor::KeepAnchor);
    return place;
}

/// Applies the desktop's font at a cursor, in the size of its first letter.
void setSystemFont(QTextCursor& place, bool isBold) {
    QTextCursor first(place.document());
    first.setPosition(place.selectionStart() + 1);
    const QFont former = first.charFormat().font().resolve(place.document()->defaultFont());
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    font.setPointSizeF(former.pointSizeF());
    font.setBold(isBold);
    QTextCharFormat format;
    format.setFont(font);
    place.mergeCharFormat(format);
}

}  // namespace

QString applicationName(const BundleInformation& information) {
    return QString::fromStdString(information.name.value_or(information.path.filename().native()));
}

QString versionLine(const BundleInformation& information) {
    const std::string& version = information.shortVersion;
    const QString text =
        information.build == version
            ? QString::fromStdString(version)
            : localised(table, TONQUIL_TEXT("KVAboutBox", "%@ (%@)"), {version, information.build});
    return localised(table, TONQUIL_TEXT("KVAboutBox", "Version %@"), {text.toStdString()});
}

QTextDocumentFragment creditsDocument(const QString& file) {
    QFile credits(file);
    if (!credits.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QByteArray bytes = credits.readAll();
    QString text = QStringDecoder::decoderForHtml(bytes).decode(bytes);
    const QString former = QStringLiteral("Lucida Grande");
    if (const qsizetype place = text.indexOf(former); place >= 0) {
        text.replace(place, former.size(), QStringLiteral("Helvetica Neue"));
    }
    return QTextDocumentFragment::fromHtml(text);
}

std::unique_ptr<QTextDocument> filledTemplate(const QTextDocument& pattern,
                                              const BundleInformation& information,
                                              const QTextDocumentFragment& credits) {
    std::unique_ptr<QTextDocument> document(pattern.clone());
    QTextCursor name = placeOf(*document, QStringLiteral("App"));
    QTextCursor version = placeOf(*document, QStringLiteral("Version"));
    QTextCursor copyright = placeOf(*document, QStringLiteral("Copyright"));
    QTextCursor acknowledged = placeOf(*document, QStringLiteral("Credits"));
    setSystemFont(version, false);
    setSystemFont(name, true);
    // Last to first, so that inserted text cannot be mistaken for a placeholder.
    acknowledged.removeSelectedText();
    acknowledged.insertFragment(credits);
    copyright.insertText(QString::fromStdString(information.copyright.value_or("")));
    version.insertText(versionLine(information));
    name.insertText(applicationName(information));
    return document;
}

}  // namespace tonquil
