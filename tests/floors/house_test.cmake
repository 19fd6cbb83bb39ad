# Configures a small house in PLACE, with the one fault that CASE names, and looks at what is told of it.
set(house "${PLACE}/${CASE}")
file(REMOVE_RECURSE "${house}")

# room(<target> <folder> [<room>...])
function(room target folder)
    file(WRITE "${house}/src/${folder}/CMakeLists.txt" "
add_library(${target} ${target}.cpp)
stands_on(${target} ${ARGN})
")
    file(WRITE "${house}/src/${folder}/${target}.h" "#pragma once\n")
    file(WRITE "${house}/src/${folder}/${target}.cpp" "#include \"${folder}/${target}.h\"\n")
    file(APPEND "${house}/src/CMakeLists.txt" "add_subdirectory(${folder})\n")
endfunction()

file(WRITE "${house}/CMakeLists.txt" "
cmake_minimum_required(VERSION 3.25)
project(house LANGUAGES CXX)
include(${SOURCE}/cmake/floors.cmake)
include(${SOURCE}/cmake/subsystem_tests.cmake)
add_library(strict INTERFACE)
add_library(GTest::gtest_main INTERFACE IMPORTED)
add_subdirectory(src)
add_subdirectory(tests)
")
room(cellar cellar)
room(shed shed cellar)
room(kitchen kitchen cellar)
room(study study kitchen)
room(window study/window study)
file(WRITE "${house}/src/study/study.cpp" "#include <queue>
#include \"cellar/cellar.h\"
#  include <kitchen/kitchen.h>
")
file(WRITE "${house}/src/study/window/window.h" "#include <QWidget>\n#include <qwidget.h>\n")
file(WRITE "${house}/src/door.h" "#include <Qt>\n")
file(WRITE "${house}/src/door.cpp" "#include \"door.h\"
#include \"study/window/window.h\"
#include \"cellar/cellar.h\"
")
file(APPEND "${house}/src/CMakeLists.txt" "
add_executable(door door.cpp)
stands_on(door window)
check_floors(QT_IN study/window door.h)
")
file(WRITE "${house}/tests/CMakeLists.txt" "add_subdirectory(kitchen)\ncheck_that_every_test_is_built()\n")
file(WRITE "${house}/tests/kitchen/CMakeLists.txt" "add_subsystem_tests(kitchen kitchen_test.cpp LIBRARIES kitchen)\n")
file(WRITE "${house}/tests/kitchen/kitchen_test.cpp" "")

# fault(<case> <file> <content> <told>...)
# In <case> <file> holds <content>, and each <told> is told.
function(fault case file content)
    if(CASE STREQUAL case)
        file(WRITE "${house}/${file}" "${content}")
        set(told "${ARGN}" PARENT_SCOPE)
    endif()
endfunction()

fault(UpwardIncludeStops src/cellar/cellar.h "#pragma once\n\n#include \"kitchen/kitchen.h\"\n"
      "${house}/src/cellar/cellar.h:3: #include \"kitchen/kitchen.h\": cellar does not stand on that room")
fault(IncludeFromARoomBesideStops src/kitchen/kitchen.cpp "#include \"shed/shed.h\"\n"
      "${house}/src/kitchen/kitchen.cpp:1: #include \"shed/shed.h\": kitchen does not stand on that room")
fault(IncludeFromARoomWithinStops src/study/study.cpp "\n#include \"study/window/window.h\"\n"
      "${house}/src/study/study.cpp:2: #include \"study/window/window.h\": study does not stand on that room")
fault(IncludeFromTheProgramStops src/study/study.cpp "#include \"door.h\"\n"
      "${house}/src/study/study.cpp:1: #include \"door.h\": study does not stand on that room")
fault(UpwardIncludeInAngleBracketsStops src/cellar/cellar.cpp "// a\n // b\n\t# include <kitchen/kitchen.h>\n"
      "${house}/src/cellar/cellar.cpp:3: \t# include <kitchen/kitchen.h>: cellar does not stand on that room")
fault(IncludeByAWayAroundStops src/cellar/cellar.cpp "#include \"../kitchen/kitchen.h\"\n"
      "${house}/src/cellar/cellar.cpp:1: #include \"../kitchen/kitchen.h\": is not named from ${house}/src")
fault(EveryFaultIsTold src/kitchen/kitchen.cpp "#include <QString>\n#include \"door.h\"\n#include \"shed/shed.h\"\n"
      "${house}/src/kitchen/kitchen.cpp:1: #include <QString>"
      "${house}/src/kitchen/kitchen.cpp:2: #include \"door.h\""
      "${house}/src/kitchen/kitchen.cpp:3: #include \"shed/shed.h\"")
fault(QtHeaderInTheCoreStops src/kitchen/kitchen.cpp "#include \"kitchen/kitchen.h\"\n#include <QtCore/QString>\n"
      "${house}/src/kitchen/kitchen.cpp:2: #include <QtCore/QString>: Qt has no place in kitchen")
fault(QtHeaderByItsFileNameStops src/kitchen/kitchen.cpp "#include <qstring.h>\n"
      "${house}/src/kitchen/kitchen.cpp:1: #include <qstring.h>: Qt has no place in kitchen")
fault(QtHeaderBesideTheFileThatMayStops src/door.cpp "#include <QString>\n"
      "${house}/src/door.cpp:1: #include <QString>: Qt has no place in door")
fault(SourceThatNothingBuildsStops src/kitchen/oven.cpp "" "${house}/src/kitchen/oven.cpp: is no source of kitchen")
fault(FileOutsideOfTheRoomsStops src/garden/tree.h "" "${house}/src/garden/tree.h: is in no room")
fault(RoomOnAHigherOneStops src/cellar/CMakeLists.txt "add_library(cellar cellar.cpp)\nstands_on(cellar kitchen)\n"
      "cellar stands on kitchen, which is no room, or none yet" "src/cellar/CMakeLists.txt:2 (stands_on)")
fault(TestThatNothingBuildsStops tests/kitchen/oven_test.cpp ""
      "No test program builds this:" "${house}/tests/kitchen/oven_test.cpp\n")
fault(TestInAFolderThatIsNotBuiltStops tests/study/study_test.cpp ""
      "No test program builds this:" "${house}/tests/study/study_test.cpp\n")

# Nothing is compiled, so the compiler need not be tried.
execute_process(COMMAND "${CMAKE_COMMAND}" -G Ninja -DCMAKE_CXX_COMPILER_FORCED=ON -S "${house}" -B "${house}/build"
                RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT DEFINED told)
    if(NOT CASE STREQUAL "SoundHousePasses" OR NOT status EQUAL 0)
        message(FATAL_ERROR "${CASE} ended with ${status}:\n${output}")
    endif()
elseif(status EQUAL 0)
    message(FATAL_ERROR "${CASE} was let pass")
endif()
foreach(text IN LISTS told)
    string(FIND "${output}" "${text}" place)
    if(place EQUAL -1)
        message(FATAL_ERROR "not told:\n${text}\ntold:\n${output}")
    endif()
endforeach()
file(REMOVE_RECURSE "${house}")
