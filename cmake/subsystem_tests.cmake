include(GoogleTest)

# add_subsystem_tests(<target> <source>... [LIBRARIES <target>...])
# LOCK <name>: tests of one name run one at a time.
# One test program <target>_tests. Stops the configure step when a *_test.cpp of the folder is not in the list: a test
# that no build compiles is no test.
function(add_subsystem_tests target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "LOCK" "LIBRARIES")
    file(GLOB present RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" CONFIGURE_DEPENDS *_test.cpp)
    foreach(file IN LISTS present)
        if(NOT file IN_LIST arg_UNPARSED_ARGUMENTS)
            message(FATAL_ERROR "${CMAKE_CURRENT_SOURCE_DIR}/${file} is in no test program")
        endif()
    endforeach()
    add_executable(${target}_tests ${arg_UNPARSED_ARGUMENTS})
    target_link_libraries(${target}_tests PRIVATE ${arg_LIBRARIES} strict GTest::gtest_main)
    target_include_directories(${target}_tests PRIVATE "${CMAKE_SOURCE_DIR}")
    gtest_discover_tests(${target}_tests DISCOVERY_MODE PRE_TEST 
                         PROPERTIES ENVIRONMENT "${TALLYHUT_TEST_ENVIRONMENT}" RESOURCE_LOCK "${arg_LOCK}" TIMEOUT 300)
endfunction()
