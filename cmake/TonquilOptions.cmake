# What every target of ours is compiled with.

add_library(tonquil_options INTERFACE)
target_compile_features(tonquil_options INTERFACE cxx_std_20)
target_compile_options(tonquil_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow $<$<BOOL:${TONQUIL_WARNINGS_ARE_ERRORS}>:-Werror>
    # Tables are held to the bit: a fused multiply-add would round once where the formula rounds
    # twice. Never -ffast-math, for the same reason.
    -ffp-contract=off)

# What people run reads files, networks and buses that anybody may have written to. Overruns of the
# stack and of the C library's buffers end the program, and tables of addresses are read-only. The
# compiler makes executables position-independent by itself.
if(CMAKE_BUILD_TYPE STREQUAL "Release")
    target_compile_options(tonquil_options INTERFACE
        -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    target_link_options(tonquil_options INTERFACE -Wl,-z,relro,-z,now)
    # Optimising as much, g++ 12 takes `"text" + string` for an overlapping copy.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        target_compile_options(tonquil_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict>)
    endif()
endif()

if(TONQUIL_SANITIZE)
    list(JOIN TONQUIL_SANITIZE "," sanitizers)
    target_compile_options(tonquil_options INTERFACE
        -fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(tonquil_options INTERFACE -fsanitize=${sanitizers})
endif()
if(TONQUIL_FUZZERS)
    target_compile_options(tonquil_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
