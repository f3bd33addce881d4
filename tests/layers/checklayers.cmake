# Builds each wrong-way include probe and expects the compiler to miss the
# header: a layer only sees its own folder and the layers below it.
# Called by ctest with -DBUILD_DIR=... -DPROBES="target:header;..."
set(failures "")
foreach(probe ${PROBES})
    string(REPLACE ":" ";" parts ${probe})
    list(GET parts 0 target)
    list(GET parts 1 header)
    execute_process(COMMAND ${CMAKE_COMMAND} --build ${BUILD_DIR} --target ${target}
                    RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(result EQUAL 0 OR NOT "${out}${err}" MATCHES "${header}: No such file")
        list(APPEND failures "${target} (${header})")
    endif()
endforeach()
if(failures)
    message(FATAL_ERROR "Reachable across layers: ${failures}")
endif()
message(STATUS "Every probe was refused")
