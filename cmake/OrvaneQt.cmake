# Qt and the helpers that make client libraries and Qt tests.
include_guard(GLOBAL)

set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Multimedia Widgets Network Svg Test)
if(ORVANE_WITH_WEBENGINE)
    find_package(Qt5 5.15 REQUIRED COMPONENTS WebEngineWidgets WebChannel)
endif()

# orvane_add_library(<folder> SOURCES <files> LIBS <libraries>): the static library orvane_<folder> of a
# client folder. Includes are written from client/, as in "widgets/OvToast.h".
function(orvane_add_library folder)
    cmake_parse_arguments(L "" "" "SOURCES;LIBS" ${ARGN})
    add_library(orvane_${folder} STATIC ${L_SOURCES})
    target_include_directories(orvane_${folder} PUBLIC "${PROJECT_SOURCE_DIR}/client")
    target_link_libraries(orvane_${folder} PUBLIC ${L_LIBS})
    target_compile_definitions(orvane_${folder} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
endfunction()

# orvane_add_qttest(NAME <tst_x> LABELS <labels> SOURCES <files> LIBS <libraries> [TIMEOUT <seconds>]
# [SERIAL]): a Qt Test program. Tests labelled gui run inside a virtual display of their own (Xvfb with
# the openbox window manager), unless one is already there.
function(orvane_add_qttest)
    cmake_parse_arguments(T "SERIAL" "NAME;TIMEOUT" "LABELS;SOURCES;LIBS" ${ARGN})
    add_executable(${T_NAME} ${T_SOURCES})
    orvane_compile_fast(${T_NAME})
    target_link_libraries(${T_NAME} PRIVATE ${T_LIBS} Qt5::Test)
    if("recording_sdk" IN_LIST T_LIBS)
        set_target_properties(${T_NAME} PROPERTIES ORVANE_SDK recording_sdk)
    endif()
    if("gui" IN_LIST T_LABELS OR "e2e" IN_LIST T_LABELS)
        target_link_libraries(${T_NAME} PRIVATE orvane_test_display)
        add_test(NAME ${T_NAME} COMMAND "${PROJECT_SOURCE_DIR}/tools/with-display" $<TARGET_FILE:${T_NAME}>)
    else()
        add_test(NAME ${T_NAME} COMMAND ${T_NAME})
        set_property(TEST ${T_NAME} APPEND PROPERTY ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
    endif()
    orvane_set_timeout(${T_NAME} "${T_TIMEOUT}")
    set_tests_properties(${T_NAME} PROPERTIES LABELS "${T_LABELS}")
    if(T_SERIAL)
        set_tests_properties(${T_NAME} PROPERTIES RUN_SERIAL ON)
    endif()
endfunction()
