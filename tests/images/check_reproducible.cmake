# Redraws every compiled-in image from the description into a scratch folder and compares
# the result byte for byte with the committed files: the description stays the source of
# truth and the generator stays deterministic.
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BUILD} --target zelImageGen RESULT_VARIABLE rc)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "cannot build zelImageGen")
endif()
file(REMOVE_RECURSE ${WORK})
execute_process(COMMAND ${BUILD}/tools/zelImageGen ${SOURCE}/tools/imagegen/images.json ${WORK}
    RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(NOT rc EQUAL 0)
    message(FATAL_ERROR "zelImageGen failed (${rc}):\n${out}\n${err}")
endif()
file(GLOB_RECURSE generated RELATIVE ${WORK} ${WORK}/*.png ${WORK}/*.ico)
list(LENGTH generated count)
if(count EQUAL 0)
    message(FATAL_ERROR "zelImageGen wrote no images")
endif()
foreach(name IN LISTS generated)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${WORK}/${name} ${SOURCE}/resources/${name}
        RESULT_VARIABLE differs)
    if(differs)
        message(FATAL_ERROR "resources/${name} differs from what the description draws")
    endif()
endforeach()
message(STATUS "${count} images reproduced exactly")
