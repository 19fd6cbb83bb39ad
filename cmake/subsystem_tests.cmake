include(GoogleTest)

# add_subsystem_tests(<target> <source>... [LIBRARIES <target>...])
# One test program <target>_tests.
# LABEL <label>: what ctest selects its tests by: unit, which is what they are if nothing is said; realtime where they take
# their time; threads where they do and the thread sanitizer looks at them too; screen where they draw windows.
# LOCK <name>: tests of one name run one at a time.
function(add_subsystem_tests target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "LABEL;LOCK" "LIBRARIES")
    if(NOT arg_LABEL)
        set(arg_LABEL unit)
    endif()
    add_executable(${target}_tests ${arg_UNPARSED_ARGUMENTS})
    target_link_libraries(${target}_tests PRIVATE ${arg_LIBRARIES} strict GTest::gtest_main)
    target_include_directories(${target}_tests PRIVATE "${CMAKE_SOURCE_DIR}")
    gtest_discover_tests(${target}_tests DISCOVERY_MODE PRE_TEST
                         PROPERTIES ENVIRONMENT "${TALLYHUT_TEST_ENVIRONMENT}" LABELS ${arg_LABEL}
                                    RESOURCE_LOCK "${arg_LOCK}" TIMEOUT 300)
    list(TRANSFORM arg_UNPARSED_ARGUMENTS PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    set_property(GLOBAL APPEND PROPERTY SOURCES_OF_TESTS ${arg_UNPARSED_ARGUMENTS})
endfunction()

# Stops the configure step when a *_test.cpp of this folder or of one below it is in no test program: a test that no
# build compiles is no test.
function(check_that_every_test_is_built)
    file(GLOB_RECURSE tests CONFIGURE_DEPENDS *_test.cpp)
    get_property(built GLOBAL PROPERTY SOURCES_OF_TESTS)
    foreach(test IN LISTS tests)
        if(NOT test IN_LIST built)
            message(FATAL_ERROR "No test program builds this:\n  ${test}\n")
        endif()
    endforeach()
endfunction()
