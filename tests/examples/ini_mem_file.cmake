# Installs the file class, builds the example against the installed package and runs it.

include("${CMAKE_CURRENT_LIST_DIR}/build_example.cmake")
build_example(IniMemFile)

# Runs the example on the file with the arguments behind `expected`; its output is `expected`, all of it.
function(expect result expected)
    execute_process(COMMAND "${WORK}/build/ini_edit" "${WORK}/file.dat" ${ARGN}
        RESULT_VARIABLE actual OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT actual EQUAL result OR NOT output STREQUAL expected)
        message(FATAL_ERROR "ini_edit ${ARGN}\nexpected ${result}\n${expected}\ngot ${actual}\n${output}${errors}")
    endif()
endfunction()

file(WRITE "${WORK}/file.dat" "; a comment\n[Version]\nver=001.000\n[01]\nName=one\nExp=A&B\n")
expect(0 "[Version] ver=001.000\n[01] Name=one\n[01] Exp=A&B\n")
expect(0 "A&B\n" 01 Exp)
expect(1 "" 01 Missing)
expect(0 "" 01 Name two)
expect(0 "" 02 Name three)
expect(0 "[Version] ver=001.000\n[01] Name=two\n[01] Exp=A&B\n[02] Name=three\n")
expect(1 "" 01 "a=b" c)

file(READ "${WORK}/file.dat" bytes HEX)
string(HEX "[Version]\r\nver=001.000\r\n\r\n[01]\r\nName=two\r\nExp=A&B\r\n\r\n[02]\r\nName=three\r\n\r\n" wanted)
if(NOT bytes STREQUAL wanted)
    message(FATAL_ERROR "file.dat holds ${bytes}")
endif()
