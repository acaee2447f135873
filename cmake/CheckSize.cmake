# Fails unless the files below a folder, source maps aside, take less than a number of bytes in all.
#
#     cmake -DFOLDER=... -DLIMIT=bytes -P CheckSize.cmake
file(GLOB_RECURSE files RELATIVE "${FOLDER}" "${FOLDER}/*")
list(FILTER files EXCLUDE REGEX "\\.map$")
if(NOT files)
    message(FATAL_ERROR "${FOLDER} holds no files: build it first")
endif()
set(total 0)
set(sizes "")
foreach(file IN LISTS files)
    file(SIZE "${FOLDER}/${file}" size)
    math(EXPR total "${total} + ${size}")
    string(APPEND sizes "\n  ${size}  ${file}")
endforeach()
if(total GREATER_EQUAL LIMIT)
    message(FATAL_ERROR "${FOLDER} takes ${total} bytes; it must take less than ${LIMIT}:${sizes}")
endif()
message(STATUS "${FOLDER} takes ${total} bytes, less than ${LIMIT}")
