// SPDX-License-Identifier: MIT
// libsystemd, loaded when the first of its functions is called: with the libraries that it needs,
// it takes as long to load as a whole command takes to run, and only Wayland desktops are asked on
// a bus.
#include <systemd/sd-bus.h>

#include <cerrno>

#include "cli/LateLibrary.h"

namespace {

struct Systemd {
    static constexpr const char* file = "libsystemd.so.0";
    static constexpr int failure = -ENOSYS;
};

template <auto own, typename... Arguments>
auto late(const char* name, Arguments... arguments) {
    return tonquil::late<Systemd, own>(name, arguments...);
}

}  // namespace

// NOLINTBEGIN(readability-identifier-naming): libsystemd's names.
extern "C" {

int sd_bus_add_match_async(sd_bus* bus, sd_bus_slot** slot, const char* match,
                           sd_bus_message_handler_t callback,
                           sd_bus_message_handler_t install_callback, void* userdata) {
    return late<&sd_bus_add_match_async>("sd_bus_add_match_async", bus, slot, match, callback,
                                         install_callback, userdata);
}
int sd_bus_call_async(sd_bus* bus, sd_bus_slot** slot, sd_bus_message* message,
                      sd_bus_message_handler_t callback, void* userdata, uint64_t usec) {
    return late<&sd_bus_call_async>("sd_bus_call_async", bus, slot, message, callback, userdata,
                                    usec);
}
sd_bus* sd_bus_close_unref(sd_bus* bus) {
    return late<&sd_bus_close_unref>("sd_bus_close_unref", bus);
}
int sd_bus_get_events(sd_bus* bus) {
    return late<&sd_bus_get_events>("sd_bus_get_events", bus);
}
int sd_bus_get_fd(sd_bus* bus) {
    return late<&sd_bus_get_fd>("sd_bus_get_fd", bus);
}
int sd_bus_get_timeout(sd_bus* bus, uint64_t* timeout_usec) {
    return late<&sd_bus_get_timeout>("sd_bus_get_timeout", bus, timeout_usec);
}
int sd_bus_get_unique_name(sd_bus* bus, const char** unique) {
    return late<&sd_bus_get_unique_name>("sd_bus_get_unique_name", bus, unique);
}
int sd_bus_is_open(sd_bus* bus) {
    return late<&sd_bus_is_open>("sd_bus_is_open", bus);
}
int sd_bus_is_ready(sd_bus* bus) {
    return late<&sd_bus_is_ready>("sd_bus_is_ready", bus);
}
int sd_bus_message_append_array(sd_bus_message* message, char type, const void* ptr, size_t size) {
    return late<&sd_bus_message_append_array>("sd_bus_message_append_array", message, type, ptr,
                                              size);
}
int sd_bus_message_append_basic(sd_bus_message* message, char type, const void* p) {
    return late<&sd_bus_message_append_basic>("sd_bus_message_append_basic", message, type, p);
}
int sd_bus_message_at_end(sd_bus_message* message, int complete) {
    return late<&sd_bus_message_at_end>("sd_bus_message_at_end", message, complete);
}
int sd_bus_message_close_container(sd_bus_message* message) {
    return late<&sd_bus_message_close_container>("sd_bus_message_close_container", message);
}
int sd_bus_message_enter_container(sd_bus_message* message, char type, const char* contents) {
    return late<&sd_bus_message_enter_container>("sd_bus_message_enter_container", message, type,
                                                 contents);
}
int sd_bus_message_exit_container(sd_bus_message* message) {
    return late<&sd_bus_message_exit_container>("sd_bus_message_exit_container", message);
}
const sd_bus_error* sd_bus_message_get_error(sd_bus_message* message) {
    return late<&sd_bus_message_get_error>("sd_bus_message_get_error", message);
}
const char* sd_bus_message_get_path(sd_bus_message* message) {
    return late<&sd_bus_message_get_path>("sd_bus_message_get_path", message);
}
int sd_bus_message_is_method_error(sd_bus_message* message, const char* name) {
    return late<&sd_bus_message_is_method_error>("sd_bus_message_is_method_error", message, name);
}
int sd_bus_message_new_method_call(sd_bus* bus, sd_bus_message** message, const char* destination,
                                   const char* path, const char* interface, const char* member) {
    return late<&sd_bus_message_new_method_call>("sd_bus_message_new_method_call", bus, message,
                                                 destination, path, interface, member);
}
int sd_bus_message_open_container(sd_bus_message* message, char type, const char* contents) {
    return late<&sd_bus_message_open_container>("sd_bus_message_open_container", message, type,
                                                contents);
}
int sd_bus_message_peek_type(sd_bus_message* message, char* type, const char** contents) {
    return late<&sd_bus_message_peek_type>("sd_bus_message_peek_type", message, type, contents);
}
int sd_bus_message_read_array(sd_bus_message* message, char type, const void** ptr, size_t* size) {
    return late<&sd_bus_message_read_array>("sd_bus_message_read_array", message, type, ptr, size);
}
int sd_bus_message_read_basic(sd_bus_message* message, char type, void* p) {
    return late<&sd_bus_message_read_basic>("sd_bus_message_read_basic", message, type, p);
}
int sd_bus_message_skip(sd_bus_message* message, const char* types) {
    return late<&sd_bus_message_skip>("sd_bus_message_skip", message, types);
}
sd_bus_message* sd_bus_message_unref(sd_bus_message* message) {
    return late<&sd_bus_message_unref>("sd_bus_message_unref", message);
}
int sd_bus_negotiate_fds(sd_bus* bus, int b) {
    return late<&sd_bus_negotiate_fds>("sd_bus_negotiate_fds", bus, b);
}
int sd_bus_new(sd_bus** ret) {
    return late<&sd_bus_new>("sd_bus_new", ret);
}
int sd_bus_process(sd_bus* bus, sd_bus_message** r) {
    return late<&sd_bus_process>("sd_bus_process", bus, r);
}
int sd_bus_set_address(sd_bus* bus, const char* address) {
    return late<&sd_bus_set_address>("sd_bus_set_address", bus, address);
}
int sd_bus_set_bus_client(sd_bus* bus, int b) {
    return late<&sd_bus_set_bus_client>("sd_bus_set_bus_client", bus, b);
}
int sd_bus_start(sd_bus* bus) {
    return late<&sd_bus_start>("sd_bus_start", bus);
}
int sd_bus_wait(sd_bus* bus, uint64_t timeout_usec) {
    return late<&sd_bus_wait>("sd_bus_wait", bus, timeout_usec);
}

}  // extern "C"
// NOLINTEND(readability-identifier-naming)
