# Builds an example as another team would: against the installed component, outside this project.
#
# cmake -DBUILD=... -DSOURCE=... -DWORK=... -DGENERATOR=... -DCOMPILER=... -DLAUNCHER=... -DBUILD_TYPE=...
#       -DFLAGS=... -P the file that includes this one

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE failed OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(failed)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
endfunction()

# Installs the component in WORK/prefix and builds the example in WORK/build.
function(build_example component)
    file(REMOVE_RECURSE "${WORK}")
    file(MAKE_DIRECTORY "${WORK}")
    run("${CMAKE_COMMAND}" --install "${BUILD}" --component ${component} --prefix "${WORK}/prefix")
    run("${CMAKE_COMMAND}" -S "${SOURCE}" -B "${WORK}/build" -G "${GENERATOR}"
        "-DCMAKE_PREFIX_PATH=${WORK}/prefix" "-DCMAKE_CXX_COMPILER=${COMPILER}"
        "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}" "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}"
        "-DCMAKE_CXX_FLAGS=${FLAGS}")
    run("${CMAKE_COMMAND}" --build "${WORK}/build")
endfunction()
