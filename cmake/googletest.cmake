# GoogleTest from source, so that it is built with the same compiler, flags and sanitizers as the tests.
set(VARNO_GOOGLETEST_DIR /usr/src/googletest CACHE PATH "The source of GoogleTest")
if(EXISTS ${VARNO_GOOGLETEST_DIR}/CMakeLists.txt)
    set(INSTALL_GTEST OFF)
    set(BUILD_GMOCK OFF)
    add_subdirectory(${VARNO_GOOGLETEST_DIR} googletest EXCLUDE_FROM_ALL SYSTEM)
    if(VARNO_SANITIZE)
        target_compile_options(gtest PRIVATE -fsanitize=address,undefined)
    endif()
else()
    message(FATAL_ERROR "GoogleTest's source is not in ${VARNO_GOOGLETEST_DIR}: "
                        "install the package googletest or set VARNO_GOOGLETEST_DIR")
endif()
