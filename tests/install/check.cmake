cmake_minimum_required(VERSION 3.16)
# Installs the built library into a scratch prefix, checks that only public headers were
# installed, then configures, builds and runs a host project that finds the library with
# find_package(zelRibbon), and builds the demo on its own against the same installation.
file(REMOVE_RECURSE ${WORK})

function(run_step)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT rc EQUAL 0)
        message(FATAL_ERROR "step failed (${rc}): ${ARGN}\n${out}\n${err}")
    endif()
endfunction()

run_step(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/prefix)

file(GLOB installed RELATIVE ${WORK}/prefix/include/zelRibbon ${WORK}/prefix/include/zelRibbon/*)
foreach(name IN LISTS installed)
    if(name MATCHES "_p\\.h$" OR name STREQUAL "RibbonPlatform.h")
        message(FATAL_ERROR "internal header installed: ${name}")
    endif()
endforeach()
if(NOT "RibbonMainWindow.h" IN_LIST installed OR NOT "zelRibbon.h" IN_LIST installed)
    message(FATAL_ERROR "public headers missing from the installation: ${installed}")
endif()

run_step(${CMAKE_COMMAND} -S ${HOST} -B ${WORK}/host -G Ninja -DCMAKE_PREFIX_PATH=${WORK}/prefix)
run_step(${CMAKE_COMMAND} --build ${WORK}/host)
run_step(${WORK}/host/host --check)
run_step(${CMAKE_COMMAND} -S ${DEMO} -B ${WORK}/demo -G Ninja -DCMAKE_PREFIX_PATH=${WORK}/prefix
         -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
run_step(${CMAKE_COMMAND} --build ${WORK}/demo)
message(STATUS "installed package works for a host and for the demo built on its own")
