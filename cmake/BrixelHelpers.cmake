# SPDX-License-Identifier: LGPL-2.1-or-later
# Build-tree helpers shared by the library's folders.

# Public headers sit next to their sources and are included as <Brixel/Name.h>. In the build
# tree that include path is served by small forwarding headers; an install copies the real
# headers into include/Brixel/<folder>/ (so their relative includes of each other still
# resolve) beside flat forwarding headers include/Brixel/Name.h.
set(BRIXEL_FORWARDING_INCLUDE_DIR ${CMAKE_BINARY_DIR}/include)
set(BRIXEL_INSTALL_FORWARDING_DIR ${CMAKE_BINARY_DIR}/install-include)

# Stops the configuration when a file of <layer> includes a header of another folder than the
# layers it uses ("../tables/X.h" from drawing/, say): the folders' direction is part of the
# build, checked whenever CMake configures.
function(brixel_check_layer_includes layer uses)
    string(TOLOWER "${uses}" allowed)
    foreach(file IN LISTS ARGN)
        file(STRINGS ${file} includes REGEX "^#include \"\\.\\./[a-z]+/")
        foreach(line IN LISTS includes)
            string(REGEX REPLACE "^#include \"\\.\\./([a-z]+)/.*" "\\1" folder "${line}")
            if(NOT folder IN_LIST allowed)
                message(FATAL_ERROR "${file} of the ${layer} layer includes ${folder}/, which ${layer} does not use")
            endif()
        endforeach()
    endforeach()
endfunction()

# brixel_add_layer(<Layer> MODULES <Qt modules> [USES <layers above>]
#                  HEADERS <public headers> SOURCES <sources and _p.h headers>)
# Builds one folder as the object library Brixel<Layer>, which sees only the Qt modules named
# here and the layers it uses, so a file that includes what its layer may not use does not
# compile. Its objects go into the one Brixel shared library; its public headers are
# installed and listed in the umbrella header <Brixel/Brixel<Layer>>.
function(brixel_add_layer layer)
    cmake_parse_arguments(ARG "" "" "MODULES;USES;HEADERS;SOURCES" ${ARGN})
    set(target Brixel${layer})
    brixel_check_layer_includes(${layer} "${ARG_USES}" ${ARG_HEADERS} ${ARG_SOURCES})
    add_library(${target} OBJECT)
    set_target_properties(${target} PROPERTIES
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    # Brixel_EXPORTS makes BRIXEL_EXPORT mean "exported from here", as in the shared library.
    target_compile_definitions(${target} PRIVATE Brixel_EXPORTS
        QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)
    target_compile_options(${target} PRIVATE -Wall -Wextra)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${BRIXEL_FORWARDING_INCLUDE_DIR}>)
    list(TRANSFORM ARG_MODULES PREPEND Qt6:: OUTPUT_VARIABLE qt_modules)
    list(TRANSFORM ARG_USES PREPEND Brixel OUTPUT_VARIABLE used_layers)
    target_link_libraries(${target} PUBLIC ${qt_modules} ${used_layers})
    target_link_libraries(Brixel PRIVATE ${target})

    get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
    set(umbrella "// The public headers of Brixel's ${folder} layer.\n#pragma once\n")
    foreach(header IN LISTS ARG_HEADERS)
        set(absolute ${CMAKE_CURRENT_SOURCE_DIR}/${header})
        file(CONFIGURE OUTPUT ${BRIXEL_FORWARDING_INCLUDE_DIR}/Brixel/${header}
             CONTENT "#include \"${absolute}\"\n" @ONLY)
        file(CONFIGURE OUTPUT ${BRIXEL_INSTALL_FORWARDING_DIR}/Brixel/${header}
             CONTENT "#include \"${folder}/${header}\"\n" @ONLY)
        install(FILES ${absolute} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Brixel/${folder})
        install(FILES ${BRIXEL_INSTALL_FORWARDING_DIR}/Brixel/${header}
                DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Brixel)
        string(APPEND umbrella "#include <Brixel/${header}>\n")
    endforeach()
    file(CONFIGURE OUTPUT ${BRIXEL_FORWARDING_INCLUDE_DIR}/Brixel/${target} CONTENT "${umbrella}" @ONLY)
    install(FILES ${BRIXEL_FORWARDING_INCLUDE_DIR}/Brixel/${target} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Brixel)
    set_property(GLOBAL APPEND PROPERTY BRIXEL_LAYERS ${target})

    list(TRANSFORM ARG_HEADERS PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    list(TRANSFORM ARG_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    target_sources(${target} PRIVATE ${ARG_HEADERS} ${ARG_SOURCES})
endfunction()

# Writes <Brixel/Brixel>, which includes every layer's umbrella header.
function(brixel_write_umbrella)
    get_property(layers GLOBAL PROPERTY BRIXEL_LAYERS)
    set(umbrella "// Every public header of Brixel.\n#pragma once\n")
    foreach(layer IN LISTS layers)
        string(APPEND umbrella "#include <Brixel/${layer}>\n")
    endforeach()
    file(CONFIGURE OUTPUT ${BRIXEL_FORWARDING_INCLUDE_DIR}/Brixel/Brixel CONTENT "${umbrella}" @ONLY)
    install(FILES ${BRIXEL_FORWARDING_INCLUDE_DIR}/Brixel/Brixel DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Brixel)
endfunction()
