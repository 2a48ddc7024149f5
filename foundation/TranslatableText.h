// SPDX-License-Identifier: MIT
#pragma once

/// Marks a user-visible text in code that does not know Qt. The English `text` is kept as the key,
/// and the code that shows it translates it in `context`. Both are string literals;
/// scripts/update-translations.sh finds them by the name of this macro.
///
/// Texts that are also logged stay English in the log. The context "Problem" covers every `Problem`
/// sentence, the reasons why a display cannot be corrected, and the panel's alerts.
// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): a function would hide the literal from the tools.
#define TONQUIL_TEXT(context, text) text
