# cmake -DICONV=... -DINPUT=... -DOUTPUT=... -P ToCp949.cmake: one text file, UTF-8 to CP949 with CR LF.

get_filename_component(folder "${OUTPUT}" DIRECTORY)
file(MAKE_DIRECTORY "${folder}")
set(crlf "${OUTPUT}.utf8")
configure_file("${INPUT}" "${crlf}" @ONLY NEWLINE_STYLE CRLF)
execute_process(COMMAND "${ICONV}" -f UTF-8 -t CP949 "${crlf}"
    OUTPUT_FILE "${OUTPUT}" RESULT_VARIABLE failed ERROR_VARIABLE error)
file(REMOVE "${crlf}")
if(failed)
    file(REMOVE "${OUTPUT}")
    message(FATAL_ERROR "${INPUT}: ${error}")
endif()
