// SPDX-License-Identifier: MIT
#include "windows/menus/ProblemText.h"

#include <QCoreApplication>

#include "foundation/TextFormat.h"

namespace tonquil {

QString translatedProblem(const std::string& key, const std::vector<std::string>& arguments) {
    QString format = QCoreApplication::translate("Problem", key.c_str());
    // A message containing a file name may contain something that looks like a placeholder.
    if (arguments.empty()) {
        return format;
    }
    std::vector<std::string> translated;
    translated.reserve(arguments.size());
    for (const std::string& argument : arguments) {
        translated.push_back(
            QCoreApplication::translate("Problem", argument.c_str()).toStdString());
    }
    return QString::fromStdString(formattedText(format.toStdString(), translated));
}

QString obstacleText(const PanelSubject& subject) {
    QString text = QCoreApplication::translate("Problem", subject.obstacle.c_str());
    if (!subject.remedy.empty()) {
        text +=
            QStringLiteral("\n\n") + QCoreApplication::translate("Problem", subject.remedy.c_str());
    }
    return text;
}

}  // namespace tonquil
