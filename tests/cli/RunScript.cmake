# Runs one golden script and compares what it prints with the files beside it, to the byte. Run as
#     cmake -DCONSOLE=<tunwright-cli> -DSCRIPT=<NAME.tws> -DWORK=<folder> -P RunScript.cmake
# Beside NAME.tws stand NAME.out, its standard output, and where they are needed
#     NAME.err     its standard error (otherwise empty); scripts are named without their folder
#     NAME.status  its exit status (otherwise 0)
#     NAME.args    the arguments before the script (otherwise an empty database and settings in memory); a line holds
#                  arguments separated by blanks, @WORK@ stands for the folder that the script runs in
#     NAME.files/  the files that the script reads, copied into the folder that it runs in
# The script runs in a folder of its own, which holds a copy of it and is empty otherwise.
cmake_minimum_required(VERSION 3.25)
cmake_path(GET SCRIPT PARENT_PATH folder)
cmake_path(GET SCRIPT STEM name)
set(expected ${folder}/${name})

if(NOT EXISTS ${expected}.out)
  message(FATAL_ERROR "${name}.tws has no ${name}.out beside it")
endif()
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

set(arguments --database :memory: --settings :memory:)
if(EXISTS ${expected}.args)
  file(READ ${expected}.args text)
  string(REPLACE "@WORK@" "${WORK}/run" text "${text}")
  separate_arguments(arguments UNIX_COMMAND "${text}")
endif()
set(expected_status 0)
if(EXISTS ${expected}.status)
  file(STRINGS ${expected}.status expected_status)
endif()
set(run ${WORK}/run)
file(COPY ${SCRIPT} DESTINATION ${run})
if(IS_DIRECTORY ${expected}.files)
  file(COPY ${expected}.files/ DESTINATION ${run})
endif()
file(TOUCH ${WORK}/empty)
set(expected_err ${WORK}/empty)
if(EXISTS ${expected}.err)
  set(expected_err ${expected}.err)
endif()

execute_process(COMMAND ${CONSOLE} ${arguments} ${name}.tws WORKING_DIRECTORY ${run} TIMEOUT 60
  OUTPUT_FILE ${WORK}/out ERROR_FILE ${WORK}/err RESULT_VARIABLE status)

set(failed "")
# compare(WHAT EXPECTED ACTUAL)
function(compare what wanted actual)
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${wanted} ${actual} RESULT_VARIABLE differ ERROR_QUIET)
  if(differ)
    execute_process(COMMAND diff -u --label expected --label actual ${wanted} ${actual} OUTPUT_VARIABLE shown)
    message(NOTICE "${name}: another standard ${what}\n${shown}")
    set(failed "${failed} ${what}" PARENT_SCOPE)
  endif()
endfunction()
compare(output ${expected}.out ${WORK}/out)
compare(error ${expected_err} ${WORK}/err)
if(NOT status STREQUAL expected_status)
  message(NOTICE "${name}: exit status ${status}, not ${expected_status}")
  string(APPEND failed " status")
endif()
if(failed)
  message(FATAL_ERROR "${name} differs:${failed}")
endif()
