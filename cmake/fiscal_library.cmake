# Sets up a library target from the sources of fiscal/ over the given base headers: a folder that
# holds base/, or nothing for our own.
function(kivo_fiscal_library target base_include_dir)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        DEFINE_SYMBOL KIVO_ERP_FISCAL_BUILDS)
    get_target_property(type ${target} TYPE)
    if(NOT type STREQUAL "SHARED_LIBRARY")
        target_compile_definitions(${target} PRIVATE KIVO_ERP_FISCAL_STATIC)
    endif()
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${base_include_dir}>" "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>")
endfunction()
