// SPDX-License-Identifier: MIT
#include "windows/alerts/Localisation.h"

#include <QCoreApplication>

#include "foundation/TextFormat.h"

namespace tonquil {

namespace {

constexpr std::string_view interferenceKey = "[%1$@ installed, might interfer %2$@.]";
constexpr std::string_view interference =
    "%2$@ changes the same colour tables as %1$@, and each may overwrite what the other has set. "
    "Quit %2$@, or switch it off, while you use %1$@.";

}  // namespace

QString localised(std::string_view table, std::string_view key) {
    const std::string keyText(key);
    const QString text = QCoreApplication::translate(std::string(table).c_str(), keyText.c_str());
    const bool isTranslated = text != QString::fromStdString(keyText);
    return !isTranslated && key == interferenceKey
               ? QString::fromUtf8(interference.data(), static_cast<qsizetype>(interference.size()))
               : text;
}

QString localised(std::string_view table, std::string_view key,
                  const std::vector<std::string>& arguments) {
    return QString::fromStdString(formattedText(localised(table, key).toStdString(), arguments));
}

}  // namespace tonquil
