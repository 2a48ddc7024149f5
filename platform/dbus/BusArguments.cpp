// SPDX-License-Identifier: MIT
#include "platform/dbus/BusArguments.h"

namespace tonquil {

std::string BusArguments::path() const {
    const char* const path = sd_bus_message_get_path(_message);
    return path == nullptr ? std::string() : path;
}

std::optional<std::uint32_t> BusArguments::number() {
    std::uint32_t value = 0;
    return sd_bus_message_read_basic(_message, SD_BUS_TYPE_UINT32, &value) > 0
               ? std::optional(value)
               : std::nullopt;
}

std::optional<std::uint64_t> BusArguments::longNumber() {
    std::uint64_t value = 0;
    return sd_bus_message_read_basic(_message, SD_BUS_TYPE_UINT64, &value) > 0
               ? std::optional(value)
               : std::nullopt;
}

std::optional<bool> BusArguments::boolean() {
    int value = 0;
    if (sd_bus_message_read_basic(_message, SD_BUS_TYPE_BOOLEAN, &value) <= 0) {
        return std::nullopt;
    }
    return value != 0;
}

std::optional<std::int32_t> BusArguments::integer() {
    std::int32_t value = 0;
    if (sd_bus_message_read_basic(_message, SD_BUS_TYPE_INT32, &value) <= 0) {
        return std::nullopt;
    }
    return value;
}

std::optional<double> BusArguments::real() {
    double value = 0;
    if (sd_bus_message_read_basic(_message, SD_BUS_TYPE_DOUBLE, &value) <= 0) {
        return std::nullopt;
    }
    return value;
}

std::string BusArguments::text() {
    char type = 0;
    const char* text = nullptr;
    if (sd_bus_message_peek_type(_message, &type, nullptr) <= 0 ||
        (type != SD_BUS_TYPE_STRING && type != SD_BUS_TYPE_OBJECT_PATH) ||
        sd_bus_message_read_basic(_message, type, static_cast<void*>(&text)) <= 0) {
        return {};
    }
    return text;
}

std::vector<std::string> BusArguments::texts() {
    std::vector<std::string> all;
    const char* contents = nullptr;
    if (sd_bus_message_peek_type(_message, nullptr, &contents) <= 0 || contents == nullptr) {
        return all;
    }
    const std::string type(contents);
    if ((type == "s" || type == "o") &&
        sd_bus_message_enter_container(_message, SD_BUS_TYPE_ARRAY, type.c_str()) > 0) {
        const char* text = nullptr;
        while (sd_bus_message_read_basic(_message, type[0], static_cast<void*>(&text)) > 0) {
            all.emplace_back(text);
        }
        sd_bus_message_exit_container(_message);
    }
    return all;
}

std::optional<std::size_t> BusArguments::entryCount() {
    const void* entries = nullptr;
    std::size_t bytes = 0;
    if (sd_bus_message_read_array(_message, SD_BUS_TYPE_UINT16, &entries, &bytes) <= 0) {
        return std::nullopt;
    }
    return bytes / sizeof(std::uint16_t);
}

BusArguments::Value BusArguments::value() {
    Value value;
    const char* contents = nullptr;
    if (sd_bus_message_peek_type(_message, nullptr, &contents) <= 0 || contents == nullptr) {
        return value;
    }
    const std::string type(contents);
    if (sd_bus_message_enter_container(_message, SD_BUS_TYPE_VARIANT, contents) <= 0) {
        return value;
    }
    std::uint32_t number = 0;
    if (type == "b") {
        value = boolean().value_or(false);
    } else if (type == "s") {
        value = text();
    } else if (type == "as" || type == "ao") {
        value = texts();
    } else if (type == "u" &&
               sd_bus_message_read_basic(_message, SD_BUS_TYPE_UINT32, &number) > 0) {
        value = number;
    } else {
        sd_bus_message_skip(_message, type.c_str());
    }
    sd_bus_message_exit_container(_message);
    return value;
}

void BusArguments::eachEntry(const std::function<void(const std::string& key)>& read) {
    if (sd_bus_message_enter_container(_message, SD_BUS_TYPE_ARRAY, nullptr) <= 0) {
        return;
    }
    while (sd_bus_message_enter_container(_message, SD_BUS_TYPE_DICT_ENTRY, nullptr) > 0) {
        read(text());
        if (!leave()) {
            return;
        }
    }
    sd_bus_message_exit_container(_message);
}

void BusArguments::eachStructure(const std::function<void()>& read) {
    if (sd_bus_message_enter_container(_message, SD_BUS_TYPE_ARRAY, nullptr) <= 0) {
        return;
    }
    while (readStructure(read)) {
    }
    sd_bus_message_exit_container(_message);
}

void BusArguments::structure(const std::function<void()>& read) {
    readStructure(read);
}

bool BusArguments::readStructure(const std::function<void()>& read) {
    if (sd_bus_message_enter_container(_message, SD_BUS_TYPE_STRUCT, nullptr) <= 0) {
        return false;
    }
    read();
    return leave();
}

void BusArguments::insideVariant(const std::function<void()>& read) {
    if (sd_bus_message_enter_container(_message, SD_BUS_TYPE_VARIANT, nullptr) > 0) {
        read();
        static_cast<void>(leave());
    }
}

bool BusArguments::leave() {
    while (sd_bus_message_at_end(_message, 0) == 0) {
        if (sd_bus_message_skip(_message, nullptr) < 0) {
            return false;
        }
    }
    return sd_bus_message_exit_container(_message) >= 0;
}

void BusArguments::skip() {
    sd_bus_message_skip(_message, nullptr);
}

}  // namespace tonquil
