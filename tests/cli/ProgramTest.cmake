# The program around the console: its options, its scripts, its standard input, what stays on the disk. Run as
#     cmake -DCONSOLE=<tunwright-cli> -DWORK=<folder> -P ProgramTest.cmake
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

# expect(WHAT STATUS OUTPUT ERROR ARGUMENTS...): runs the console in WORK; OUTPUT and ERROR are regular expressions
# of the whole. Standard input is the file "input".
function(expect what status output error)
  execute_process(COMMAND ${CONSOLE} ${ARGN} WORKING_DIRECTORY ${WORK} INPUT_FILE ${WORK}/input TIMEOUT 60
    RESULT_VARIABLE got_status OUTPUT_VARIABLE got_output ERROR_VARIABLE got_error)
  if(NOT got_status EQUAL status OR NOT got_output MATCHES "^${output}$" OR NOT got_error MATCHES "^${error}$")
    message(FATAL_ERROR "${what}: status ${got_status}\n${got_output}\n${got_error}")
  endif()
endfunction()

set(memory --database :memory: --settings :memory:)
file(WRITE ${WORK}/input "gravity 0\nno-such-command\n")
file(WRITE ${WORK}/first.tws "new\nsaveas 0 Old Ale\n")
file(WRITE ${WORK}/second.tws "documents\n")
file(WRITE ${WORK}/bad.tws "\nno-such-command\n")

expect("standard input without a script" 2 "1\n" "stdin:2: unknown command 'no-such-command'\n" ${memory})
expect("standard input by its dash" 2 "\\*Old Ale\n1\n" "stdin:2: .*" ${memory} first.tws second.tws -)
expect("scripts share one program" 0 "\\*Old Ale\n" "" ${memory} first.tws second.tws)
expect("a bad script ends those behind it" 2 "" "bad.tws:2: .*" ${memory} bad.tws second.tws)
expect("a script that is missing" 2 "" "none.tws: the script cannot be read\n" ${memory} none.tws)
expect("a folder is no script" 2 "" "\\.: the script cannot be read\n" ${memory} .)
expect("the help" 0 "Usage: tunwright-cli .*Commands:.*\n" "" --help)
expect("an unknown option" 2 "" "tunwright-cli: unknown option --databse\n" --databse :memory:)
expect("an option without its file" 2 "" "tunwright-cli: --database needs a file\n" --database)
file(WRITE ${WORK}/text.mdb "a text")
expect("a text file is no database" 1 "\\[Fatal Error\\] .*Could not open Tunwright database!\n" "" --database text.mdb
  --settings :memory: first.tws)

# Nothing turns recipes into a file of settings.
file(WRITE ${WORK}/input "new\nsaveas 0 Mild\nexport new ales.TWR Mild\n")
expect("a recipe file" 0 "" "" ${memory})
foreach(database ales.TWR :memory:)
  expect("a database is no file of settings" 2 "" "tunwright-cli: 'ales.TWR' is .*database.*Please choose another file .*\n"
    --database ${database} --settings ales.TWR)
endforeach()
expect("a folder is no file of settings" 2 "" "tunwright-cli: '\\.' is a folder.*\n" --database :memory: --settings .)
file(WRITE ${WORK}/input "filesql ales.TWR SELECT NAME FROM RECIPES\n")
expect("the recipe file is as before" 0 "Mild\n" "" ${memory})

# The recent list and a setting are there for the next start.
file(WRITE ${WORK}/input "setting Settings BoilVol 007\nnew\nsaveas 0 \"A, B\"\n")
expect("settings in a file" 0 "" "" --database :memory: --settings kept.ini)
file(WRITE ${WORK}/input "mru\nsetting Settings BoilVol\n")
expect("settings kept in a file" 0 "&1 A, B\n007\n" "" --database :memory: --settings kept.ini)
