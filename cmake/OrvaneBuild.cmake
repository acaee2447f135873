# Settings that hold for every target: language level, warnings, sanitizers, where programs go.
include_guard(GLOBAL)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LINK_DEPENDS_NO_SHARED ON)

if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    add_compile_options(-Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual)
    if(ORVANE_WERROR)
        add_compile_options(-Werror)
    endif()
endif()

if(MSVC)
    add_compile_options(/W3 /utf-8 /EHsc /permissive- /Zc:__cplusplus)
    if(ORVANE_WERROR)
        add_compile_options(/WX)
    endif()
endif()
if(WIN32)
    # The headers of Windows 7 and later, with wide characters and without macros for min and max.
    add_compile_definitions(UNICODE _UNICODE NOMINMAX _WIN32_WINNT=0x0601)
endif()

if(ORVANE_SANITIZE)
    add_compile_options(-fsanitize=${ORVANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${ORVANE_SANITIZE})
    if(ORVANE_SANITIZE MATCHES "thread")
        # The sanitizer does not understand Asio's memory fences; its locks order everything without them.
        add_compile_definitions(BOOST_ASIO_DISABLE_FENCED_BLOCK)
    endif()
endif()

find_package(Threads REQUIRED)

# orvane_check_api_base_url(): stops unless the API root is https, or http to a loopback host.
function(orvane_check_api_base_url)
    if(NOT ORVANE_API_BASE_URL MATCHES "^https://[^/]+(/.*[^/])?$"
       AND NOT ORVANE_API_BASE_URL MATCHES "^http://(127\\.[0-9.]+|localhost|\\[::1\\])(:[0-9]+)?(/.*[^/])?$")
        message(FATAL_ERROR
            "ORVANE_API_BASE_URL is '${ORVANE_API_BASE_URL}'. It must be an https URL without a trailing "
            "slash; plain http is allowed only for a loopback host such as http://127.0.0.1:8180.")
    endif()
endfunction()

# Limits a test to so many seconds, 120 if none are given; under a sanitizer everything takes longer.
function(orvane_set_timeout test seconds)
    if(NOT seconds)
        set(seconds 120)
    endif()
    if(ORVANE_SANITIZE)
        math(EXPR seconds "5 * ${seconds}")
    endif()
    set_tests_properties(${test} PROPERTIES TIMEOUT ${seconds})
endfunction()

# A test program's own sources are not optimised in a release build: that halves the time they compile, and what they
# test is built as it ships.
function(orvane_compile_fast target)
    if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
        target_compile_options(${target} PRIVATE "$<$<CONFIG:RelWithDebInfo>:-O0;-g1>")
    endif()
endfunction()

# orvane_add_gtest(NAME <test> LABELS <labels> SOURCES <files> LIBS <libraries>): a GoogleTest program
# run by CTest as one test.
function(orvane_add_gtest)
    cmake_parse_arguments(T "" "NAME;TIMEOUT" "LABELS;SOURCES;LIBS" ${ARGN})
    find_package(GTest REQUIRED)
    add_executable(${T_NAME} ${T_SOURCES})
    orvane_compile_fast(${T_NAME})
    target_link_libraries(${T_NAME} PRIVATE ${T_LIBS} GTest::gmock GTest::gtest_main)
    add_test(NAME ${T_NAME} COMMAND ${T_NAME})
    orvane_set_timeout(${T_NAME} "${T_TIMEOUT}")
    set_tests_properties(${T_NAME} PROPERTIES LABELS "${T_LABELS}")
endfunction()
