# SPDX-License-Identifier: LGPL-2.1-or-later
# Build-tree helpers shared by the library's folders.

# Public headers sit next to their sources and are included as <Brixel/Name.h>. In the build
# tree that include path is served by small forwarding headers; installs copy the real ones.
set(BRIXEL_FORWARDING_INCLUDE_DIR ${CMAKE_BINARY_DIR}/include)

# brixel_sources(HEADERS <public headers> SOURCES <sources and private headers>)
# Adds a folder's files to the Brixel library and installs its public headers.
function(brixel_sources)
    cmake_parse_arguments(ARG "" "" "HEADERS;SOURCES" ${ARGN})
    foreach(header IN LISTS ARG_HEADERS)
        set(absolute ${CMAKE_CURRENT_SOURCE_DIR}/${header})
        get_filename_component(name ${header} NAME)
        file(CONFIGURE OUTPUT ${BRIXEL_FORWARDING_INCLUDE_DIR}/Brixel/${name}
             CONTENT "#include \"${absolute}\"\n" @ONLY)
        install(FILES ${absolute} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Brixel)
        target_sources(Brixel PRIVATE ${absolute})
    endforeach()
    foreach(source IN LISTS ARG_SOURCES)
        target_sources(Brixel PRIVATE ${CMAKE_CURRENT_SOURCE_DIR}/${source})
    endforeach()
endfunction()
