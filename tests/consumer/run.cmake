# SPDX-License-Identifier: LGPL-2.1-or-later
# Installs the built library into WORK_DIR/prefix, then configures, builds and runs the
# consumer project against that prefix. Any failing step fails the test.
function(run_step)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "consumer: step failed (${result}): ${ARGN}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK_DIR})
run_step(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix)
run_step(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${WORK_DIR}/build -G ${GENERATOR}
         -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix)
run_step(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
set(ENV{LD_LIBRARY_PATH} "${WORK_DIR}/prefix/lib:$ENV{LD_LIBRARY_PATH}")
run_step(${WORK_DIR}/build/consumer)
