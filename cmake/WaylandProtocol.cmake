# Turns the description of a Wayland protocol into code.
#
# tonquil_wayland_protocol(<name> <file.xml>)
#
# makes the static library wayland_protocol_<name> with <name>-client.h and, for the compositor that
# the tests have, <name>-server.h.

include_guard(GLOBAL)

pkg_get_variable(WAYLAND_SCANNER wayland-scanner wayland_scanner)
pkg_get_variable(WAYLAND_PROTOCOLS wayland-protocols pkgdatadir)

function(tonquil_wayland_protocol name xml)
    set(directory "${CMAKE_BINARY_DIR}/wayland")
    file(MAKE_DIRECTORY "${directory}")
    foreach(kind IN ITEMS client-header server-header private-code)
        string(REGEX REPLACE "(client|server)-header" "\\1.h" suffix "${kind}")
        string(REPLACE "private-code" "code.c" suffix "${suffix}")
        set(output "${directory}/${name}-${suffix}")
        add_custom_command(OUTPUT "${output}"
            COMMAND "${WAYLAND_SCANNER}" "${kind}" "${xml}" "${output}"
            DEPENDS "${xml}" VERBATIM)
        list(APPEND outputs "${output}")
    endforeach()
    add_library(wayland_protocol_${name} STATIC ${outputs})
    set_target_properties(wayland_protocol_${name} PROPERTIES UNITY_BUILD OFF)
    # Not our code, so not held to our warnings.
    target_include_directories(wayland_protocol_${name} SYSTEM PUBLIC "${directory}")
    target_link_libraries(wayland_protocol_${name} PUBLIC PkgConfig::WAYLAND)
endfunction()
