# The language and the warnings that every target of ours is built with.
add_library(strict INTERFACE)
target_compile_features(strict INTERFACE cxx_std_20)
target_compile_options(strict INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(TALLYHUT_WERROR)
    target_compile_options(strict INTERFACE -Werror)
endif()
# g++ 12 sees overlaps in sums of literals and strings that are none (its bug 105329).
target_compile_options(strict INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_include_directories(strict INTERFACE "${CMAKE_SOURCE_DIR}/src")
set(CMAKE_CXX_EXTENSIONS OFF)

if(TALLYHUT_SANITIZE)
    target_compile_options(strict INTERFACE -fsanitize=${TALLYHUT_SANITIZE} -fno-sanitize-recover=all
                                            -fno-omit-frame-pointer)
    target_link_options(strict INTERFACE -fsanitize=${TALLYHUT_SANITIZE})
endif()
