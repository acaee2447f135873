# Windows: the libraries that the program needs go beside it, so that the installed folder is complete.
#
# Qt's own tool knows Qt's libraries, plug-ins and the web engine's files; vcpkg's come from its folder; the compiler's
# runtime from the compiler.
get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
get_filename_component(qt_programs "${qmake}" DIRECTORY)
find_program(WINDEPLOYQT windeployqt HINTS "${qt_programs}" REQUIRED)
install(CODE "
    execute_process(
        COMMAND \"${WINDEPLOYQT}\" --release --no-translations --no-compiler-runtime
            \"\${CMAKE_INSTALL_PREFIX}/orvane.exe\"
        COMMAND_ERROR_IS_FATAL ANY)
    file(GET_RUNTIME_DEPENDENCIES
        EXECUTABLES \"\${CMAKE_INSTALL_PREFIX}/orvane.exe\"
        RESOLVED_DEPENDENCIES_VAR libraries
        UNRESOLVED_DEPENDENCIES_VAR missing
        DIRECTORIES \"${VCPKG_INSTALLED_DIR}/${VCPKG_TARGET_TRIPLET}/bin\" \"\${CMAKE_INSTALL_PREFIX}\"
        PRE_EXCLUDE_REGEXES \"^api-ms-\" \"^ext-ms-\" \"^hvsifiletrust\" \"^qt5\" \"^Qt5\"
        POST_EXCLUDE_REGEXES \"[/\\\\\\\\][Ss]ystem32[/\\\\\\\\]\")
    if(missing)
        message(FATAL_ERROR \"not found: \${missing}\")
    endif()
    list(FILTER libraries EXCLUDE REGEX \"^\${CMAKE_INSTALL_PREFIX}/\")
    file(INSTALL \${libraries} DESTINATION \"\${CMAKE_INSTALL_PREFIX}\")")

set(CMAKE_INSTALL_SYSTEM_RUNTIME_DESTINATION .)
include(InstallRequiredSystemLibraries)

install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION licences RENAME orvane.txt)
# Each vcpkg package keeps its licence in share/<package>/copyright.
file(GLOB copyrights "${VCPKG_INSTALLED_DIR}/${VCPKG_TARGET_TRIPLET}/share/*/copyright")
foreach(copyright IN LISTS copyrights)
    get_filename_component(package "${copyright}" DIRECTORY)
    get_filename_component(package "${package}" NAME)
    install(FILES "${copyright}" DESTINATION licences RENAME "${package}.txt")
endforeach()
