# Chooses the streaming SDK. Afterwards the client links:
#   swplay_headers   the public headers alone (INTERFACE); libraries compile against this
#   swplay::sdk      the implementation; programs link this
include_guard(GLOBAL)

if(ORVANE_STREAMING_SDK STREQUAL "bundled")
    add_subdirectory("${PROJECT_SOURCE_DIR}/runtime" "${PROJECT_BINARY_DIR}/runtime")
elseif(ORVANE_STREAMING_SDK STREQUAL "vendor")
    if(NOT SWPLAY_ROOT)
        message(FATAL_ERROR
            "ORVANE_STREAMING_SDK is 'vendor', but SWPLAY_ROOT is not set. Set it to the folder of the vendor "
            "streaming SDK, the one that holds include/swplay/ and lib/ with swplay_u:\n"
            "  cmake --preset release -DORVANE_STREAMING_SDK=vendor -DSWPLAY_ROOT=/path/to/sdk\n"
            "or build with -DORVANE_STREAMING_SDK=bundled.")
    endif()
    find_library(SWPLAY_LIBRARY NAMES swplay_u PATHS "${SWPLAY_ROOT}/lib" "${SWPLAY_ROOT}" NO_DEFAULT_PATH)
    find_path(SWPLAY_INCLUDE_DIR NAMES swplay/SWRuntime.h PATHS "${SWPLAY_ROOT}/include" NO_DEFAULT_PATH)
    if(NOT SWPLAY_LIBRARY OR NOT SWPLAY_INCLUDE_DIR)
        message(FATAL_ERROR
            "SWPLAY_ROOT is '${SWPLAY_ROOT}', but it does not hold include/swplay/SWRuntime.h and a library "
            "swplay_u in lib/. Point it to an unpacked vendor streaming SDK.")
    endif()
    add_library(swplay_headers INTERFACE)
    target_include_directories(swplay_headers INTERFACE "${SWPLAY_INCLUDE_DIR}")
    add_library(swplay_vendor UNKNOWN IMPORTED)
    set_target_properties(swplay_vendor PROPERTIES IMPORTED_LOCATION "${SWPLAY_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${SWPLAY_INCLUDE_DIR}")
    add_library(swplay::sdk ALIAS swplay_vendor)
    # The local service speaks the wire schema, whichever SDK the client is linked with.
    if(NOT ORVANE_RUNTIME_ONLY)
        add_subdirectory("${PROJECT_SOURCE_DIR}/runtime/proto" "${PROJECT_BINARY_DIR}/runtime/proto")
    endif()
else()
    message(FATAL_ERROR "ORVANE_STREAMING_SDK is '${ORVANE_STREAMING_SDK}'; it must be 'bundled' or 'vendor'.")
endif()
