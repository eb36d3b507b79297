# Installs the file class, builds the example against the installed package and runs it.
#
# cmake -DBUILD=... -DSOURCE=... -DWORK=... -DGENERATOR=... -DCOMPILER=... -DBUILD_TYPE=... -DFLAGS=... -P ...

file(REMOVE_RECURSE "${WORK}")
file(MAKE_DIRECTORY "${WORK}")

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE failed OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(failed)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
endfunction()

# Runs the example on the file with the arguments behind `expected`; its output is `expected`, all of it.
function(expect result expected)
    execute_process(COMMAND "${WORK}/build/ini_edit" "${WORK}/file.dat" ${ARGN}
        RESULT_VARIABLE actual OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT actual EQUAL result OR NOT output STREQUAL expected)
        message(FATAL_ERROR "ini_edit ${ARGN}\nexpected ${result}\n${expected}\ngot ${actual}\n${output}${errors}")
    endif()
endfunction()

run("${CMAKE_COMMAND}" --install "${BUILD}" --component IniMemFile --prefix "${WORK}/prefix")
run("${CMAKE_COMMAND}" -S "${SOURCE}" -B "${WORK}/build" -G "${GENERATOR}"
    "-DCMAKE_PREFIX_PATH=${WORK}/prefix" "-DCMAKE_CXX_COMPILER=${COMPILER}"
    "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}" "-DCMAKE_CXX_FLAGS=${FLAGS}")
run("${CMAKE_COMMAND}" --build "${WORK}/build")

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
