# The Debian packages: one of the library, one of its debug symbols, and one for each component that
# programs are compiled against.

find_program(DPKG_DEB dpkg-deb)
if(NOT DPKG_DEB)
    return() # the tools called below are those of a Debian machine
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "kivo-erp-fiscal maintainers <maintainers@kivo.example>"
    CACHE STRING "Who answers for the packages")
set(CPACK_PACKAGE_VENDOR kivo)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)

set(runtime_package "libkivo-erp-fiscal${PROJECT_VERSION_MAJOR}")
set(symbols_package "${runtime_package}-dbgsym")
set(development_package libkivo-erp-fiscal-dev)
set(layout_package libkivo-erp-fiscal-layout-dev)
set(tools_package kivo-erp-fiscal-tools)
set(CPACK_COMPONENTS_ALL runtime symbols development)
if(KIVO_BUILD_LAYOUT)
    list(APPEND CPACK_COMPONENTS_ALL layout)
endif()
if(KIVO_BUILD_TOOLS)
    list(APPEND CPACK_COMPONENTS_ALL tools)
endif()

set(summary "content of a Brazilian electronic invoice, in C++20 classes")
set(description
"A tree of value classes that holds an NF-e (model 55) or NFC-e (model 65) as
a whole, with the taxes IBS, CBS and IS. Programs fill it from their records,
or read it back to print, transmit or store an invoice.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "${summary}\n${description}")
set(control_dir "${CMAKE_CURRENT_BINARY_DIR}/package")
file(WRITE "${control_dir}/triggers" "activate-noawait ldconfig\n")
file(WRITE "${control_dir}/shlibs" "libkivo-erp-fiscal ${PROJECT_VERSION_MAJOR} \
${runtime_package} (>= ${PROJECT_VERSION})\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${control_dir}/triggers;${control_dir}/shlibs")

set(CPACK_DEBIAN_SYMBOLS_PACKAGE_NAME ${symbols_package})
set(CPACK_DEBIAN_SYMBOLS_PACKAGE_SECTION debug)
set(CPACK_DEBIAN_SYMBOLS_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_SYMBOLS_DESCRIPTION "debug symbols for ${runtime_package}")
# where debuggers look for the symbols of a library, by its build identifier
install(CODE "
    set(readelf \"${CMAKE_READELF}\")
    set(objcopy \"${CMAKE_OBJCOPY}\")
" COMPONENT symbols EXCLUDE_FROM_ALL)
install(CODE [[
    set(library "$<TARGET_FILE:kivo-erp-fiscal>")
    execute_process(COMMAND "${readelf}" --notes "${library}" OUTPUT_VARIABLE notes
        COMMAND_ERROR_IS_FATAL ANY)
    if(NOT notes MATCHES "Build ID: (..)([0-9a-f]+)")
        message(FATAL_ERROR "${library} has no build identifier")
    endif()
    set(directory "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/lib/debug/.build-id/${CMAKE_MATCH_1}")
    file(MAKE_DIRECTORY "${directory}")
    set(file "${directory}/${CMAKE_MATCH_2}.debug")
    execute_process(COMMAND "${objcopy}" --only-keep-debug --compress-debug-sections
            "${library}" "${file}" COMMAND_ERROR_IS_FATAL ANY)
    file(CHMOD "${file}" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
]] COMPONENT symbols EXCLUDE_FROM_ALL)

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${development_package})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "${summary} - development
${description}

This package holds the headers, and what CMake and pkg-config need.")

set(CPACK_DEBIAN_LAYOUT_PACKAGE_NAME ${layout_package})
set(CPACK_DEBIAN_LAYOUT_PACKAGE_DEPENDS
    "${development_package} (= ${PROJECT_VERSION}), libpugixml-dev")
set(CPACK_DEBIAN_LAYOUT_DESCRIPTION "layout map of the NF-e over libkivo-erp-fiscal
For each field of an invoice, the map tells which element of the layout it is.
With it a program reads and writes XML documents, or walks all fields.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME ${tools_package})
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
set(KIVO_SHLIBDEPS_DIRS "" CACHE STRING
    "Folders of another processor's libraries, in packages that are unpacked with their control files")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS
    "${PROJECT_BINARY_DIR}/fiscal" ${KIVO_SHLIBDEPS_DIRS})
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${runtime_package} (>= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "shows, sums, checks and converts Brazilian invoices
nfe_summary shows NF-e and NFC-e files to a person, in Portuguese or English:
one invoice whole, or the sums of whole folders. It compares invoices, checks
them against the layout, and writes them as CSV, JSON or XML, or as a page to
print.")

if(KIVO_BUILD_LAYOUT)
    # CMake itself strips no static library
    install(CODE "
        if(CMAKE_INSTALL_DO_STRIP)
            execute_process(COMMAND \"${CMAKE_STRIP}\" --strip-debug --enable-deterministic-archives
                \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/$<TARGET_FILE_NAME:kivo-erp-fiscal-layout>\"
                COMMAND_ERROR_IS_FATAL ANY)
        endif()
    " COMPONENT layout EXCLUDE_FROM_ALL)
endif()

# Debian wants a change log in a form of its own; CHANGELOG.md tells the changes.
file(STRINGS CHANGELOG.md release REGEX "^## ${PROJECT_VERSION}, ")
if(NOT release MATCHES "[0-9-]+$")
    message(FATAL_ERROR "CHANGELOG.md does not tell of version ${PROJECT_VERSION}")
endif()
execute_process(COMMAND date --utc --rfc-email "--date=${CMAKE_MATCH_0}"
    OUTPUT_VARIABLE release_date COMMAND_ERROR_IS_FATAL ANY)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    set(package ${${component}_package})
    set(changelog "${CMAKE_CURRENT_BINARY_DIR}/package/${package}/changelog")
    file(WRITE "${changelog}" "kivo-erp-fiscal (${PROJECT_VERSION}) unstable; urgency=medium

  * Release ${PROJECT_VERSION}.

 -- ${CPACK_PACKAGE_CONTACT}  ${release_date}")
    execute_process(COMMAND gzip --best --no-name --force "${changelog}" COMMAND_ERROR_IS_FATAL ANY)
    install(FILES "${changelog}.gz" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${package}"
        COMPONENT ${component} EXCLUDE_FROM_ALL)
endforeach()

include(CPack)
