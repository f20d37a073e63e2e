# The tests in which memory or base values fail, some of them in a child process that ends.

# The classes over the base types of base/.
kivo_every_class(failure_sources every_failure exceptions.hpp faults_of)
target_sources(value_tests PRIVATE
    allocations.cpp failed_choices.cpp invoice_life.cpp support/failures.cpp support/tried.cpp
    ${failure_sources})

# The companion without memory.
kivo_test(companion_failure_tests
    companion_failures.cpp support/allocations.cpp support/failures.cpp support/tried.cpp)
target_include_directories(companion_failure_tests PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/support")
target_link_libraries(companion_failure_tests PRIVATE kivo-erp-fiscal-layout)
target_compile_definitions(companion_failure_tests PRIVATE KIVO_SOURCE_DIR="${PROJECT_SOURCE_DIR}")

# The library over other base types, which count, log and throw.
get_target_property(fiscal_sources kivo-erp-fiscal SOURCES)
list(FILTER fiscal_sources INCLUDE REGEX "\\.cpp$")
list(TRANSFORM fiscal_sources PREPEND "${PROJECT_SOURCE_DIR}/fiscal/")
add_library(kivo-erp-fiscal-counting SHARED ${fiscal_sources})
kivo_fiscal_library(kivo-erp-fiscal-counting "${CMAKE_CURRENT_SOURCE_DIR}/counting_base")
set_target_properties(kivo-erp-fiscal-counting PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)
kivo_every_class(throw_sources every_throw throwing_base.hpp of_class faults_of)
kivo_test(throwing_base_tests
    throwing_base.cpp support/allocations.cpp support/failures.cpp support/tried.cpp
    ${throw_sources})
target_link_libraries(throwing_base_tests PRIVATE kivo-erp-fiscal-counting)
kivo_share(throwing_base_tests)

# The companion over them.
get_target_property(layout_sources kivo-erp-fiscal-layout SOURCES)
list(FILTER layout_sources INCLUDE REGEX "\\.cpp$")
list(TRANSFORM layout_sources PREPEND "${PROJECT_SOURCE_DIR}/layout/")
kivo_test(companion_throw_tests
    companion_throws.cpp support/allocations.cpp support/failures.cpp support/tried.cpp
    ${layout_sources})
target_include_directories(companion_throw_tests PRIVATE "${PROJECT_BINARY_DIR}/layout/text")
target_link_libraries(companion_throw_tests PRIVATE kivo-erp-fiscal-counting pugixml::pugixml)
target_compile_definitions(companion_throw_tests PRIVATE
    KIVO_COMPANION KIVO_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
