# What the outliner's program says and how it ends: its lists, the page of commands in docs, the check
# of its own files, and failures on the standard error output. Needs PROGRAM, SOURCE_DIR and WORK_DIR.
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
file(WRITE ${WORK_DIR}/bad.xml "<keymap>\n")
file(WRITE ${WORK_DIR}/s.js
  "Outliner.print(Outliner.title)\n\nOutliner.saveAs('${WORK_DIR}/none/o.opml')\n")
file(WRITE ${WORK_DIR}/loop.js
  "Outliner.key('Down'); Outliner.type('x'); Outliner.print('ready')\nfor (;;) {}\n")
configure_file(${SOURCE_DIR}/examples/outliner/sample.opml ${WORK_DIR}/o.opml COPYONLY)

function(expect code pattern)
  execute_process(COMMAND ${PROGRAM} ${ARGN}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(NOT result EQUAL code OR NOT "${output}|${errors}" MATCHES "${pattern}")
    message(SEND_ERROR "outliner ${ARGN}: ${result}\n${output}|${errors}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

expect(0 "nothing found" --check)
expect(1 "^${WORK_DIR}/bad.xml:2:1: [^\n]*\n\\|" --check --keys ${WORK_DIR}/bad.xml)
expect(1 "\\|.*outliner: ${WORK_DIR}/bad.xml:2:1: [^\n]* own keys are used"
  --keys ${WORK_DIR}/bad.xml --script ${WORK_DIR}/s.js ${WORK_DIR}/o.opml)
expect(1 "^o.opml [^\n]*\n\\|.*${WORK_DIR}/s.js:3: [^\n]*none/o.opml"
  --script ${WORK_DIR}/s.js ${WORK_DIR}/o.opml)
expect(1 "\\|.*outliner: [^\n]*none.js" --script ${WORK_DIR}/none.js ${WORK_DIR}/o.opml)
expect(2 "\\|.*--script" --script "" ${WORK_DIR}/o.opml)
expect(2 "\\|.*--list-commands" --check --new ${WORK_DIR}/o.opml)
expect(0 "1016  outliner.app.quit  +Quit  +Ctrl.Q\n" --list-commands)
expect(0 "" --list-commands=markdown)
file(READ ${SOURCE_DIR}/docs/outliner-commands.md page)
if(NOT output STREQUAL page)
  message(SEND_ERROR "docs/outliner-commands.md:1: is not what outliner --list-commands=markdown prints")
endif()

# A script that never ends is stopped as Ctrl+C stops it, and what is lost by that is told.
execute_process(COMMAND bash -c [[
  coproc run { exec "$0" --script "$1/loop.js" "$1/o.opml" 2>&1; }
  exec 3<&"${run[0]}"
  pid=$run_PID
  until [ "${line:=}" = ready ]; do read -r line <&3 || break; done
  kill -TERM "$pid"
  cat <&3
  wait "$pid"
  echo "$line $?"]] ${PROGRAM} ${WORK_DIR}
  OUTPUT_VARIABLE output)
if(NOT output MATCHES "loop.js: the script was stopped\n.*o.opml has changes [^\n]*\nready 143\n")
  message(SEND_ERROR "stopped by a signal:\n${output}")
endif()
