# One folder, one library, one set of arrows.
#
# tonquil_folder(<folder> SOURCES … HEADERS … [LINKS …] [PRIVATE_LINKS …])
#
# makes the static library tonquil_<folder>, slashes as underscores. Includes are written from the
# root ("screens/KVScreen.h"), yet a folder sees only itself and what it links to: each library
# exports an include directory of its own that holds nothing but a link to its folder. An include
# across an arrow that is not there is therefore a missing file, not a matter of discipline.

include_guard(GLOBAL)

function(tonquil_include_directory folder result)
    set(directory "${CMAKE_BINARY_DIR}/include/${folder}")
    cmake_path(GET folder PARENT_PATH parent)
    file(MAKE_DIRECTORY "${directory}/${parent}")
    file(CREATE_LINK "${CMAKE_SOURCE_DIR}/${folder}" "${directory}/${folder}" SYMBOLIC)
    set(${result} "${directory}" PARENT_SCOPE)
endfunction()

function(tonquil_folder folder)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;HEADERS;LINKS;PRIVATE_LINKS")
    string(REPLACE "/" "_" name "tonquil_${folder}")
    tonquil_include_directory("${folder}" directory)

    # Each header compiles by itself. A source includes its own header first, so only headers
    # without a source are left to check.
    set(header_checks "")
    foreach(header IN LISTS arg_HEADERS)
        cmake_path(REPLACE_EXTENSION header LAST_ONLY .cpp OUTPUT_VARIABLE source)
        if(source IN_LIST arg_SOURCES)
            continue()
        endif()
        set(check "${CMAKE_BINARY_DIR}/header_checks/${folder}/${header}.cpp")
        file(CONFIGURE OUTPUT "${check}" CONTENT "#include \"${folder}/${header}\"\n")
        list(APPEND header_checks "${check}")
    endforeach()

    if(arg_SOURCES)
        add_library(${name} STATIC ${arg_SOURCES})
        set(scope PUBLIC)
    else()
        add_library(${name} INTERFACE)
        set(scope INTERFACE)
    endif()
    target_include_directories(${name} ${scope} "${directory}")
    target_link_libraries(${name} ${scope} tonquil_options ${arg_LINKS})
    if(arg_PRIVATE_LINKS)
        target_link_libraries(${name} PRIVATE ${arg_PRIVATE_LINKS})
    endif()

    # Once is enough: the preset without sanitizers does it.
    if(header_checks AND TONQUIL_TESTS AND NOT TONQUIL_SANITIZE)
        add_library(${name}_headers OBJECT ${header_checks})
        set_target_properties(${name}_headers PROPERTIES UNITY_BUILD OFF)
        target_compile_options(${name}_headers PRIVATE -fsyntax-only)
        target_link_libraries(${name}_headers PRIVATE ${name})
    endif()
endfunction()
