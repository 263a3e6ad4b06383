# What a host's developer does: installs the build, moves the installation elsewhere, and builds the
# first host of the docs against it, outside this tree. A second program of that project includes
# every installed header and embeds a picture, which it finds again, and no file of Qt may be among
# what the compiler has read for either.
# Needs SOURCE_DIR, BUILD_DIR, WORK_DIR and CXX.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/moved)
set(host ${WORK_DIR}/host)

function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    string(REPLACE "\n" "\n  " output "${output}")  # shown as it stands
    message(FATAL_ERROR "${what} failed (${result}):\n  ${output}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

run("installing" ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/installed)
file(RENAME ${WORK_DIR}/installed ${prefix})

file(COPY ${SOURCE_DIR}/docs/firsthost/ DESTINATION ${host})
file(GLOB_RECURSE headers RELATIVE ${prefix}/include ${prefix}/include/*.h)
list(LENGTH headers header_count)
if(header_count LESS 20)
  message(FATAL_ERROR "only ${header_count} headers are installed: ${headers}")
endif()
list(FILTER headers EXCLUDE REGEX "_win\\.h$")  # the half of a header that Windows alone reads
list(TRANSFORM headers REPLACE "(.+)" "#include \"\\1\"\n")
list(JOIN headers "" includes)
file(WRITE ${host}/everyheader.cpp "#include <iostream>
${includes}
const char here = 0;
int main() {
  const lumui::utility::ResourceManager resources(lumui::ui::ModuleOfAddress(&here));
  if (!resources.HasBinary(lumcore::utility::ToUTF16(\"Mark_At_2x\"), \"png\")) return 1;
  const lumcore::config::CatalogueLocalizer texts({}, \"de\");
  std::cout << lumcore::utility::ToStdString(texts.GetLocalizedString(\"$$$/vek/redo/Redo=Redo\"));
}\n")
file(WRITE ${host}/mark.svg "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 8 8' width='8' height='8'/>\n")
file(APPEND ${host}/CMakeLists.txt "
add_executable(everyheader everyheader.cpp)
target_link_libraries(everyheader PRIVATE vek::vek)
vek_embed_resources(everyheader IMAGES mark.svg SCALES 100 200)
target_compile_options(firsthost PRIVATE -Wall -Wextra -Werror)
target_compile_options(everyheader PRIVATE -Wall -Wextra -Werror)
")

# The only hint it gets is where the installation lies.
run("configuring the host" ${CMAKE_COMMAND} -S ${host} -B ${host}/build
  -G "Unix Makefiles" -DCMAKE_CXX_COMPILER=${CXX} -DCMAKE_PREFIX_PATH=${prefix})
run("building the host" ${CMAKE_COMMAND} --build ${host}/build --parallel 2)

file(GLOB_RECURSE dependency_files ${host}/build/*.cpp.o.d)
list(FILTER dependency_files EXCLUDE REGEX "everyheader_resources")
list(LENGTH dependency_files dependency_file_count)
if(NOT dependency_file_count EQUAL 2)
  message(FATAL_ERROR "no lists of what the compiler has read: ${dependency_files}")
endif()
foreach(file IN LISTS dependency_files)
  file(READ ${file} dependencies)
  if(NOT dependencies MATCHES "/moved/include/vek/undo/Deed\\.h")
    message(FATAL_ERROR "${file} was not compiled against the installed headers:\n${dependencies}")
  endif()
  if(dependencies MATCHES "[^ \n]*/qglobal\\.h")  # every header of Qt reads it
    message(FATAL_ERROR "a header of Qt was needed: ${CMAKE_MATCH_0}")
  endif()
endforeach()

run("the embedded picture and the libraries' texts" ${host}/build/everyheader)
if(NOT output STREQUAL "Wiederholen:")
  message(FATAL_ERROR "the moved libraries do not find their German texts, but say ${output}")
endif()

run("the host" ${host}/build/firsthost)
file(READ ${SOURCE_DIR}/tests/package/expected.txt expected)
if(NOT output STREQUAL expected)
  message(FATAL_ERROR "the host wrote\n${output}\nand not\n${expected}")
endif()

# The outliner finds its files there as well.
set(ENV{QT_QPA_PLATFORM} offscreen)
run("the installed outliner" ${prefix}/bin/outliner --check)
if(NOT output MATCHES "${prefix}/share/vek/outliner/outliner.cmdreg.xml: ")
  message(FATAL_ERROR "the installed outliner has looked at other files:\n${output}")
endif()

# Scripts run there, and where the module of their engine was not taken along, it is named.
file(WRITE ${WORK_DIR}/sum.js "Outliner.print(String(6 * 7))\n")
run("a script in the installed outliner" ${prefix}/bin/outliner --script ${WORK_DIR}/sum.js)
if(NOT output MATCHES "(^|\n)42\n$")
  message(FATAL_ERROR "the installed outliner says ${output}")
endif()
file(GLOB_RECURSE engine ${prefix}/lumscripting_engine-*)
file(REMOVE ${engine})
execute_process(COMMAND ${prefix}/bin/outliner --script ${WORK_DIR}/sum.js
  RESULT_VARIABLE result ERROR_VARIABLE errors)
string(FIND "${errors}" "\"${engine}\": the script engine cannot be loaded" told)
if(NOT result EQUAL 1 OR told EQUAL -1)
  message(FATAL_ERROR "without ${engine} a script ends with ${result}:\n${errors}")
endif()

# What is installed must find its libraries by itself, wherever it was moved to.
file(GLOB programs ${prefix}/bin/*)
foreach(file IN LISTS programs)
  if(NOT IS_SYMLINK ${file})
    run("ldd" ldd ${file})
    if(output MATCHES "[^\n]*not found[^\n]*")
      message(FATAL_ERROR "${file}: ${CMAKE_MATCH_0}")
    endif()
    if(output MATCHES "${BUILD_DIR}/lib[^\n]*")
      message(FATAL_ERROR "${file} still uses the build tree: ${CMAKE_MATCH_0}")
    endif()
  endif()
endforeach()
