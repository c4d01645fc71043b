# What every target of the project is compiled with. Linked as `varno_options`.
add_library(varno_options INTERFACE)
target_compile_features(varno_options INTERFACE cxx_std_20)
target_compile_options(varno_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
    $<$<BOOL:${VARNO_WARNINGS_AS_ERRORS}>:-Werror>)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC 12 sees overlapping copies in every inlined operator+ of a literal and a string; none of them is there.
    target_compile_options(varno_options INTERFACE -Wno-restrict)
endif()

if(VARNO_SANITIZE)
    # A sanitizer report is a failed test, so nothing is recovered from.
    target_compile_options(varno_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(varno_options INTERFACE -fsanitize=address,undefined)
    # The library's own bounds checks: the sanitizers do not see an index that stays inside the allocation.
    target_compile_definitions(varno_options INTERFACE _GLIBCXX_ASSERTIONS)
endif()

if(VARNO_FUZZ)
    target_compile_options(varno_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(WIN32)
    # SSE instead of the x87 unit: singles must stay singles, and drawing coordinates must be the same doubles
    # on every machine that the tests ran on.
    target_compile_options(varno_options INTERFACE -msse2 -mfpmath=sse -ffunction-sections -fdata-sections)
    target_compile_definitions(varno_options INTERFACE
        UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN STRICT WINVER=0x0A00 _WIN32_WINNT=0x0A00)
    # Everything static: the programs import Windows' own libraries and nothing else. Sections begin at whole pages of the
    # file: others Wine copies into memory instead of mapping them.
    target_link_options(varno_options INTERFACE -static -Wl,--gc-sections -Wl,--file-alignment,4096)
endif()

# The headers that nearly every file reads, read once a target: a third of the time to compile. Not where the program is
# worked on, as a file that forgets one of them compiles all the same.
function(varno_precompile)
    foreach(target ${ARGN})
        if(TARGET ${target})
            target_precompile_headers(${target} PRIVATE <algorithm> <array> <cstdint> <functional> <map> <memory>
                <optional> <stdexcept> <string> <string_view> <utility> <variant> <vector>)
            if(target MATCHES "_tests$")
                target_precompile_headers(${target} PRIVATE <gtest/gtest.h>)
            endif()
        endif()
    endforeach()
endfunction()
