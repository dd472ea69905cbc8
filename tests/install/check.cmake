# Installs the built library into a scratch prefix, then configures, builds and runs a
# host project that finds it with find_package(zelRibbon).
file(REMOVE_RECURSE ${WORK})
foreach(step
        "${CMAKE_COMMAND};--install;${BUILD};--prefix;${WORK}/prefix"
        "${CMAKE_COMMAND};-S;${HOST};-B;${WORK}/host;-G;Ninja;-DCMAKE_PREFIX_PATH=${WORK}/prefix"
        "${CMAKE_COMMAND};--build;${WORK}/host"
        "${WORK}/host/host;--check")
    execute_process(COMMAND ${step} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT rc EQUAL 0)
        message(FATAL_ERROR "step failed (${rc}): ${step}\n${out}\n${err}")
    endif()
endforeach()
message(STATUS "installed package works")
