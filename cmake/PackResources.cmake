# Packs every file below a folder into one Qt resource file.
#
#     cmake -DFOLDER=... -DPREFIX=/path/in/resources -DRCC=... -DOUTPUT=....rcc -P PackResources.cmake
file(GLOB_RECURSE files RELATIVE "${FOLDER}" "${FOLDER}/*")
set(list "<RCC><qresource prefix=\"${PREFIX}\">\n")
foreach(file IN LISTS files)
    string(APPEND list "<file alias=\"${file}\">${FOLDER}/${file}</file>\n")
endforeach()
string(APPEND list "</qresource></RCC>\n")
file(WRITE "${OUTPUT}.qrc" "${list}")
execute_process(
    COMMAND "${RCC}" --binary "${OUTPUT}.qrc" --output "${OUTPUT}"
    RESULT_VARIABLE result)
file(REMOVE "${OUTPUT}.qrc")
if(NOT result EQUAL 0)
    message(FATAL_ERROR "packing ${FOLDER} failed")
endif()
