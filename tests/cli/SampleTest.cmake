# The sample recipe as ./run shows it where there is no display: each figure behind its name. Run as
#     cmake -DCONSOLE=<tunwright-cli> -DMAKE_DATABASE=<tunwright-make-database> -DROOT=<sources> -DWORK=<folder>
#         -P SampleTest.cmake
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
set(sample ${ROOT}/data/samples/first-recipe.tws)
set(name_figures ${ROOT}/scripts/name-figures)
set(expected "Original gravity 1.052
Final gravity 1.011
Alcohol 5.5% abv
Color 8 SRM (11 HCU)
Bitterness in IBUs 43
Carbonation 2.30 volumes
")

execute_process(COMMAND ${MAKE_DATABASE} ${ROOT}/data/catalogue ${WORK}/sample.mdb COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CONSOLE} --database ${WORK}/sample.mdb --settings :memory: ${sample}
  COMMAND ${name_figures} ${sample} OUTPUT_VARIABLE shown ERROR_VARIABLE errors RESULTS_VARIABLE statuses TIMEOUT 60)
if(NOT shown STREQUAL expected OR NOT errors STREQUAL "" OR NOT statuses STREQUAL "0;0")
  message(FATAL_ERROR "the sample shows (${statuses})\n${shown}${errors}")
endif()

# A box between the figures would shift their names.
file(WRITE ${WORK}/script "# Gravity\nget txtOG\n# A comment\n\nget txtFG\n")
file(WRITE ${WORK}/boxed "[Error] A box\n1.052\n1.011\n")
file(WRITE ${WORK}/sound "1.052\n1.011\n")
foreach(case "sound;0;Gravity 1.052\n1.011\n" "boxed;1;[Error] A box\n1.052\n1.011\n")
  list(POP_FRONT case input status)
  execute_process(COMMAND ${name_figures} ${WORK}/script INPUT_FILE ${WORK}/${input} OUTPUT_VARIABLE shown
    RESULT_VARIABLE got TIMEOUT 60)
  if(NOT shown STREQUAL case OR NOT got EQUAL status)
    message(FATAL_ERROR "${input}: ${got}\n${shown}")
  endif()
endforeach()
# What ./run works is that sample, through that filter.
file(READ ${ROOT}/run run)
if(NOT run MATCHES "kSample=data/samples/first-recipe.tws" OR NOT run MATCHES "scripts/name-figures \"[$]kSample\"")
  message(FATAL_ERROR "./run does not name the figures of the sample")
endif()
