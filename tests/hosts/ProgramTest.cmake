# What the outliner's program says and how it ends: its lists, the page of commands in docs, the check
# of its own files, and failures on the standard error output. Needs PROGRAM, SOURCE_DIR and WORK_DIR.
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})
file(WRITE ${WORK_DIR}/bad.xml "<keymap>\n")
file(WRITE ${WORK_DIR}/s.script "title\n\nsave-as ${WORK_DIR}/none/o.opml\n")
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
  --keys ${WORK_DIR}/bad.xml --script ${WORK_DIR}/s.script ${WORK_DIR}/o.opml)
expect(1 "^o.opml .*\\|.*outliner: ${WORK_DIR}/s.script:3: [^\n]*none/o.opml" --script
  ${WORK_DIR}/s.script ${WORK_DIR}/o.opml)
expect(2 "\\|.*--list-commands" --check --new ${WORK_DIR}/o.opml)
expect(0 "1016  outliner.app.quit  +Quit  +Ctrl.Q\n" --list-commands)
expect(0 "" --list-commands=markdown)
file(READ ${SOURCE_DIR}/docs/outliner-commands.md page)
if(NOT output STREQUAL page)
  message(SEND_ERROR "docs/outliner-commands.md:1: is not what outliner --list-commands=markdown prints")
endif()
