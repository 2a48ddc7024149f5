// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QTextDocumentFragment>
#include <memory>

#include "windows/about/BundleInformation.h"

class QTextDocument;

namespace tonquil {

[[nodiscard]] QString applicationName(const BundleInformation& information);
/// "Version 6.2 (6204)", without the parentheses where the build is the version.
[[nodiscard]] QString versionLine(const BundleInformation& information);

/// The HTML document `file`, which may be a resource, decoded with its declared or detected
/// encoding. Empty if it does not exist.
[[nodiscard]] QTextDocumentFragment creditsDocument(const QString& file);

/// A copy of `pattern` in which the first "App", "Version", "Copyright" and "Credits", which must
/// occur in this order, are replaced by the actual text.
[[nodiscard]] std::unique_ptr<QTextDocument> filledTemplate(const QTextDocument& pattern,
                                                            const BundleInformation& information,
                                                            const QTextDocumentFragment& credits);

}  // namespace tonquil
