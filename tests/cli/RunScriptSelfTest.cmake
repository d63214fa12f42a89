# Proves that RunScript.cmake fails when it should. Run as
#     cmake -DCONSOLE=<tunwright-cli> -DRUNNER=<RunScript.cmake> -DWORK=<folder> -P RunScriptSelfTest.cmake
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${WORK})

# expect(NAME REGEX): the runner's result on the script NAME; an empty REGEX expects success.
function(expect name regex)
  execute_process(COMMAND ${CMAKE_COMMAND} -DCONSOLE=${CONSOLE} -DSCRIPT=${WORK}/${name}.tws -DWORK=${WORK}/run
    -P ${RUNNER} RESULT_VARIABLE status ERROR_VARIABLE said OUTPUT_VARIABLE said)
  if(regex STREQUAL "" AND NOT status EQUAL 0)
    message(FATAL_ERROR "${name} should pass:\n${said}")
  elseif(NOT regex STREQUAL "" AND (status EQUAL 0 OR NOT said MATCHES "${regex}"))
    message(FATAL_ERROR "${name} should fail with \"${regex}\":\n${said}")
  endif()
endfunction()

file(WRITE ${WORK}/good.tws "gravity 0\n")
file(WRITE ${WORK}/good.out "1\n")
expect(good "")

file(WRITE ${WORK}/lonely.tws "gravity 0\n")
expect(lonely "has no lonely.out")

file(WRITE ${WORK}/wrong.tws "gravity 0\n")
file(WRITE ${WORK}/wrong.out "2\n")
expect(wrong "-2.*\\+1.*differs: output")

# A missing line break at the end is a difference too.
file(WRITE ${WORK}/cut.tws "gravity 0\n")
file(WRITE ${WORK}/cut.out "1")
expect(cut "differs: output")

file(WRITE ${WORK}/refused.tws "no-such-command\n")
file(WRITE ${WORK}/refused.out "")
expect(refused "differs: error status")

file(WRITE ${WORK}/refused.status "2\n")
file(WRITE ${WORK}/refused.err "refused.tws:1: unknown command 'no-such-command'\n")
expect(refused "")

file(WRITE ${WORK}/arguments.tws "setting MRU File0\n")
file(WRITE ${WORK}/arguments.args "--settings @WORK@/none.ini\n")
file(WRITE ${WORK}/arguments.out "\n")
expect(arguments "")
