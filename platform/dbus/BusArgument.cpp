// SPDX-License-Identifier: MIT
#include "platform/dbus/BusArgument.h"

#include <algorithm>

namespace tonquil {

namespace {

/// Appends arguments of every type, and keeps the first error.
class Appender {
 public:
    explicit Appender(sd_bus_message* message) : _message(message) {}

    void operator()(const std::string& text) { basic(SD_BUS_TYPE_STRING, text.c_str()); }
    void operator()(const BusObjectPath& object) {
        basic(SD_BUS_TYPE_OBJECT_PATH, object.path.c_str());
    }
    void operator()(std::uint32_t number) { basic(SD_BUS_TYPE_UINT32, &number); }
    void operator()(std::span<const std::uint16_t> entries) {
        note(sd_bus_message_append_array(_message, SD_BUS_TYPE_UINT16, entries.data(),
                                         entries.size_bytes()));
    }
    void operator()(const std::vector<std::string>& texts) {
        inside(SD_BUS_TYPE_ARRAY, "s", [&] {
            for (const std::string& text : texts) {
                (*this)(text);
            }
        });
    }
    void operator()(const BusDictionary& dictionary) {
        inside(SD_BUS_TYPE_ARRAY, "{sv}", [&] {
            for (const auto& entry : dictionary) {
                inside(SD_BUS_TYPE_DICT_ENTRY, "sv", [&] {
                    (*this)(entry.first);
                    inside(SD_BUS_TYPE_VARIANT, "s", [&] { (*this)(entry.second); });
                });
            }
        });
    }
    void operator()(const BusNamedDictionaries& named) {
        inside(SD_BUS_TYPE_ARRAY, "(sa{sv})", [&] {
            for (const auto& each : named) {
                inside(SD_BUS_TYPE_STRUCT, "sa{sv}", [&] {
                    (*this)(each.first);
                    (*this)(each.second);
                });
            }
        });
    }

    [[nodiscard]] int result() const { return _result; }

 private:
    void basic(char type, const void* value) {
        note(sd_bus_message_append_basic(_message, type, value));
    }
    template <typename Contents>
    void inside(char type, const char* contentType, Contents append) {
        note(sd_bus_message_open_container(_message, type, contentType));
        append();
        note(sd_bus_message_close_container(_message));
    }
    void note(int result) { _result = std::min(_result, result); }

    sd_bus_message* _message;
    int _result = 0;
};

}  // namespace

int appendArgument(sd_bus_message* message, const BusArgument& argument) {
    Appender appender(message);
    std::visit([&](const auto& value) { appender(value); }, argument);
    return appender.result();
}

}  // namespace tonquil
