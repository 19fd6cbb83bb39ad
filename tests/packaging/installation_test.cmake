# Installs what was built in BUILD and starts it with a new folder.
set(place "${BUILD}/installation")
set(prefix "${place}/usr")
file(REMOVE_RECURSE "${place}")
file(MAKE_DIRECTORY "${place}/contest")

function(expect_equal what value expected)
    if(NOT value STREQUAL expected)
        message(FATAL_ERROR "${what} is\n${value}\nnot\n${expected}")
    endif()
endfunction()

execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${prefix}" OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
foreach(file bin/tallyhut share/applications/tallyhut.desktop share/icons/hicolor/scalable/apps/tallyhut.svg
             share/man/man1/tallyhut.1.gz share/doc/tallyhut/copyright share/doc/tallyhut/docs/operating.md share/tallyhut/prompts/Call.wav)
    if(NOT EXISTS "${prefix}/${file}")
        message(FATAL_ERROR "${file} was not installed")
    endif()
endforeach()

execute_process(COMMAND "${prefix}/bin/tallyhut" --version OUTPUT_VARIABLE version COMMAND_ERROR_IS_FATAL ANY)
expect_equal("the version" "${version}" "tallyhut ${VERSION}\n")

# Another text than that of the sources, which are still there while a test runs.
file(WRITE "${prefix}/share/tallyhut/readns.txt" "the installed help text")
file(WRITE "${place}/commands" "quit\n")
execute_process(
    COMMAND "${CMAKE_COMMAND}" -E env "HOME=${place}" "XDG_CONFIG_HOME=${place}/.config" "${prefix}/bin/tallyhut" --console
            --directory "${place}/contest"
    INPUT_FILE "${place}/commands"
    OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
foreach(file readns.txt wave2.txt BandPlan.txt)
    file(READ "${place}/contest/${file}" copied)
    file(READ "${prefix}/share/tallyhut/${file}" installed)
    expect_equal("${file}" "${copied}" "${installed}")
endforeach()
if(NOT EXISTS "${place}/contest/nspref.txt")
    message(FATAL_ERROR "the first start made no settings:\n${output}")
endif()
file(REMOVE_RECURSE "${place}")
