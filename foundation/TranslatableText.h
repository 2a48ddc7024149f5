// SPDX-License-Identifier: MIT
#pragma once

/// A text that is shown in a person's language, where nothing knows of the toolkit that translates:
/// it stays the English `text`, as a key, and whoever shows it looks it up in `context`. Both are
/// string literals; scripts/update-translations.sh collects them by the name of this macro.
///
/// Texts that go to the log as well are kept in English there. The context "Problem" is that of
/// every sentence of a `Problem`, of what stands in a display's way, and of the panel's alerts.
// NOLINTNEXTLINE(cppcoreguidelines-macro-usage): a function would hide the literal from the tools.
#define TONQUIL_TEXT(context, text) text
