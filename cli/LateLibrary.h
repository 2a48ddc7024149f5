// SPDX-License-Identifier: MIT
#pragma once

#include <dlfcn.h>

#include <type_traits>

namespace tonquil {

/// Calls a function of a shared library that is loaded with the first such call, so that commands
/// that need none of it start without it.
///
/// `Library` has the file's name as `file`, and as `failure` what its functions of type `int`
/// return if the library is missing; the others return null or 0. `own` is our function of that
/// name, which the linker takes for the library's.
template <typename Library, auto own, typename... Arguments>
auto late(const char* name, Arguments... arguments) {
    using Function = decltype(own);
    using Answer = std::invoke_result_t<Function, Arguments...>;
    static const auto function = [name] {
        void* const library = dlopen(Library::file, RTLD_NOW | RTLD_LOCAL);
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what dlsym is for.
        return reinterpret_cast<Function>(library == nullptr ? nullptr : dlsym(library, name));
    }();
    if (function != nullptr) {
        return function(arguments...);
    }
    if constexpr (std::is_same_v<Answer, int>) {
        return Library::failure;
    } else {
        return Answer();
    }
}

}  // namespace tonquil
