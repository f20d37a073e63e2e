# What is installed, by component: runtime is the library, development what it takes to compile
# against it, layout the layout map, tools the program over it. Nothing of it knows where it stands: a tree may be moved.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/kivo-erp-fiscal")
set(pkgconfig_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
set(include_dir "${CMAKE_INSTALL_INCLUDEDIR}/kivo-erp-${PROJECT_VERSION_MAJOR}")
set(generated_dir "${CMAKE_CURRENT_BINARY_DIR}/install")
file(RELATIVE_PATH include_from_pkgconfig
    "${CMAKE_INSTALL_PREFIX}/${pkgconfig_dir}" "${CMAKE_INSTALL_PREFIX}/${include_dir}")

install(TARGETS kivo-erp-fiscal
    EXPORT kivo-erp-fiscal
    RUNTIME COMPONENT runtime
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE COMPONENT development
    FILE_SET HEADERS DESTINATION "${include_dir}" COMPONENT development)
if(NOT WIN32)
    # GDB loads the printers with the library: it repeats the library's path in a folder of its own
    install(FILES fiscal/gdb/printers.py
        DESTINATION "${CMAKE_INSTALL_DATADIR}/gdb/auto-load\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}"
        RENAME "$<TARGET_FILE_NAME:kivo-erp-fiscal>-gdb.py"
        COMPONENT runtime)
endif()
# a user compiles over the base headers that the library was compiled over
set(base_include_dir "${PROJECT_SOURCE_DIR}")
if(KIVO_BASE_INCLUDE_DIR)
    set(base_include_dir "${KIVO_BASE_INCLUDE_DIR}")
endif()
install(DIRECTORY "${base_include_dir}/base"
    DESTINATION "${include_dir}" COMPONENT development FILES_MATCHING PATTERN *.hpp)
install(EXPORT kivo-erp-fiscal
    NAMESPACE kivo:: FILE kivo-erp-fiscal-targets.cmake
    DESTINATION "${package_dir}" COMPONENT development)

configure_package_config_file(cmake/kivo-erp-fiscal-config.cmake.in
    "${generated_dir}/kivo-erp-fiscal-config.cmake" INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file("${generated_dir}/kivo-erp-fiscal-config-version.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
    "${generated_dir}/kivo-erp-fiscal-config.cmake"
    "${generated_dir}/kivo-erp-fiscal-config-version.cmake"
    DESTINATION "${package_dir}" COMPONENT development)
configure_file(cmake/kivo-erp-fiscal.pc.in "${generated_dir}/kivo-erp-fiscal.pc" @ONLY)
install(FILES "${generated_dir}/kivo-erp-fiscal.pc"
    DESTINATION "${pkgconfig_dir}" COMPONENT development)

set(development_documents "${CMAKE_INSTALL_DATADIR}/doc/libkivo-erp-fiscal-dev")
install(FILES docs/guide.md docs/guia.md
    DESTINATION "${development_documents}" COMPONENT development)
install(FILES examples/first_invoice.cpp
    DESTINATION "${development_documents}/examples" COMPONENT development)

if(KIVO_BUILD_LAYOUT)
    install(TARGETS kivo-erp-fiscal-layout
        EXPORT kivo-erp-fiscal-layout
        ARCHIVE COMPONENT layout
        FILE_SET HEADERS DESTINATION "${include_dir}" COMPONENT layout)
    install(EXPORT kivo-erp-fiscal-layout
        NAMESPACE kivo:: FILE kivo-erp-fiscal-layout-targets.cmake
        DESTINATION "${package_dir}" COMPONENT layout)
    configure_file(cmake/kivo-erp-fiscal-layout.pc.in
        "${generated_dir}/kivo-erp-fiscal-layout.pc" @ONLY)
    install(FILES "${generated_dir}/kivo-erp-fiscal-layout.pc"
        DESTINATION "${pkgconfig_dir}" COMPONENT layout)
endif()

if(KIVO_BUILD_TOOLS)
    # where the loader looks by itself, a path of our own would only be in the way
    if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
        set_target_properties(nfe_summary PROPERTIES
            INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
    endif()
    install(TARGETS nfe_summary RUNTIME COMPONENT tools)
    set(tool_files "${PROJECT_BINARY_DIR}/tools/nfe_summary")
    install(DIRECTORY "${tool_files}/locale"
        DESTINATION "${CMAKE_INSTALL_DATADIR}" COMPONENT tools)
endif()

if(KIVO_BUILD_TOOLS AND NOT WIN32)
    foreach(file
            manual.en.gz:man/man1/nfe_summary.1.gz
            manual.pt_BR.gz:man/pt_BR/man1/nfe_summary.1.gz
            bash:bash-completion/completions/nfe_summary
            zsh:zsh/vendor-completions/_nfe_summary
            fish:fish/vendor_completions.d/nfe_summary.fish)
        string(REPLACE ":" ";" source_and_place "${file}")
        list(GET source_and_place 0 source)
        list(GET source_and_place 1 place)
        get_filename_component(folder "${place}" DIRECTORY)
        get_filename_component(name "${place}" NAME)
        install(FILES "${tool_files}/beside/${source}"
            DESTINATION "${CMAKE_INSTALL_DATADIR}/${folder}" RENAME "${name}" COMPONENT tools)
    endforeach()
endif()
