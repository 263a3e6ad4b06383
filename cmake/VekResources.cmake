# vek_embed_resources(TARGET [FILES file...] [DOCUMENTS xml...] [IMAGES svg...] [SCALES percent...]
#   [SIZES NAME=units...] [INKS NAME=colour...]): builds resources into a program or a shared library, whose code finds them
# through a lumui::utility::ResourceManager of its module. It may be called several times for a target.
# A library of objects hands them on to the program that it is linked into.
#
# FILES are taken as they are: the type is the extension and the name is what stands before it.
# IMAGES are rendered to PNG resources of the file's name, in each scale (100 if none is given; 150, 200
# and 300 are possible). With SIZES each is made in several heights, with "_NAME" behind its own name,
# and with INKS in several colours, which take the place of currentColor in the SVG.
function(vek_embed_resources target)
  cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "FILES;DOCUMENTS;IMAGES;SCALES;SIZES;INKS")
  if(ARG_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "vek_embed_resources(${target}): unknown arguments: ${ARG_UNPARSED_ARGUMENTS}")
  endif()
  get_target_property(type ${target} TYPE)
  if(NOT type MATCHES "^(EXECUTABLE|SHARED_LIBRARY|MODULE_LIBRARY|OBJECT_LIBRARY)$")
    # A linker drops an object that nobody refers to from an archive.
    message(FATAL_ERROR "vek_embed_resources(${target}): resources are built into a program, a shared "
      "library or a library of objects, and this is of the type ${type}")
  endif()

  set(lines "")
  foreach(option SCALES SIZES INKS)
    if(ARG_${option})
      string(TOLOWER ${option} word)
      list(JOIN ARG_${option} " " values)
      string(APPEND lines "${word} ${values}\n")
    endif()
  endforeach()
  set(sources "")
  foreach(kind IMAGES DOCUMENTS FILES)
    foreach(file IN LISTS ARG_${kind})
      get_filename_component(path ${file} ABSOLUTE)
      if(NOT EXISTS ${path})
        message(FATAL_ERROR "vek_embed_resources(${target}): there is no file ${path}")
      endif()
      list(APPEND sources ${path})
      if(kind STREQUAL IMAGES)
        string(APPEND lines "image ${path}\n")
      elseif(kind STREQUAL DOCUMENTS)
        string(APPEND lines "document ${path}\n")
      else()
        string(APPEND lines "file ${path}\n")
      endif()
    endforeach()
  endforeach()

  get_target_property(number ${target} VEK_RESOURCE_CALLS)
  if(NOT number)
    set(number 0)
  endif()
  math(EXPR number "${number} + 1")
  set_target_properties(${target} PROPERTIES VEK_RESOURCE_CALLS ${number})
  set(manifest ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources_${number}.txt)
  set(output ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources_${number}.cpp)
  file(GENERATE OUTPUT ${manifest} CONTENT "${lines}")
  add_custom_command(OUTPUT ${output}
    COMMAND vek::vek_embed ${manifest} ${output}
    DEPENDS vek::vek_embed ${manifest} ${sources}
    COMMENT "Resources of ${target}" VERBATIM)
  target_sources(${target} PRIVATE ${output})
  set_source_files_properties(${output} PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
  target_link_libraries(${target} PRIVATE vek::lumui)
endfunction()
