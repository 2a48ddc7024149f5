// SPDX-License-Identifier: MIT
#include "platform/xdg/DesktopEntry.h"

#include <utility>

#include "files/BoundedFile.h"

namespace tonquil {

namespace {

constexpr std::size_t mostBytes = 65536;
constexpr const char* group = G_KEY_FILE_DESKTOP_GROUP;

struct FreeError {
    void operator()(GError* error) const { g_error_free(error); }
};

struct FreeText {
    void operator()(gchar* text) const { g_free(text); }
};

/// Takes ownership of a GLib string; empty for null.
std::string taken(gchar* text) {
    const std::unique_ptr<gchar, FreeText> owner(text);
    return owner ? owner.get() : std::string();
}

}  // namespace

Result<DesktopEntry> DesktopEntry::read(const std::filesystem::path& file) {
    return readBoundedFile(file, mostBytes).and_then([](const auto& bytes) {
        return parse(std::string(bytes.begin(), bytes.end()));
    });
}

Result<DesktopEntry> DesktopEntry::parse(std::string_view text) {
    DesktopEntry entry;
    GError* error = nullptr;
    // Without the flag, GLib keeps only the process's own languages.
    if (g_key_file_load_from_data(entry._keys.get(), text.data(), text.size(),
                                  G_KEY_FILE_KEEP_TRANSLATIONS, &error) == FALSE) {
        const std::unique_ptr<GError, FreeError> owner(error);
        return problem("The desktop file is damaged.", owner->message);
    }
    return entry;
}

std::string DesktopEntry::value(const std::string& key) const {
    return taken(g_key_file_get_string(_keys.get(), group, key.c_str(), nullptr));
}

std::string DesktopEntry::localizedValue(const std::string& key, const std::string& locale) const {
    return taken(
        g_key_file_get_locale_string(_keys.get(), group, key.c_str(), locale.c_str(), nullptr));
}

bool DesktopEntry::boolValue(const std::string& key, bool otherwise) const {
    GError* error = nullptr;
    const bool value = g_key_file_get_boolean(_keys.get(), group, key.c_str(), &error) == TRUE;
    if (error == nullptr) {
        return value;
    }
    g_error_free(error);
    return otherwise;
}

void DesktopEntry::setValue(const std::string& key, const std::string& value) {
    g_key_file_set_string(_keys.get(), group, key.c_str(), value.c_str());
}

std::string DesktopEntry::text() const {
    return taken(g_key_file_to_data(_keys.get(), nullptr, nullptr));
}

// Desktop files have their own quoting rules, different from a shell's.
std::string DesktopEntry::quotedArgument(std::string_view argument) {
    std::string text = "\"";
    for (const char c : argument) {
        if (std::string_view("\"`$\\").find(c) != std::string_view::npos) {
            text += '\\';
        } else if (c == '%') {
            text += '%';
        }
        text += c;
    }
    text += '"';
    return text;
}

}  // namespace tonquil
