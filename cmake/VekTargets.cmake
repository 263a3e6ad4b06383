# What every target of ours has in common: warnings, sanitizers, visibility, export macros.

# Interface target for all our targets. Nothing is silenced but the deprecation of std::auto_ptr,
# which is part of the host's contract (see vek_exposes_auto_ptr).
add_library(vek_build_options INTERFACE)
target_compile_options(vek_build_options INTERFACE
  $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall -Wextra -Wshadow -Werror>)
if(VEK_SANITIZE)
  target_compile_options(vek_build_options INTERFACE
    -fsanitize=${VEK_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(vek_build_options INTERFACE -fsanitize=${VEK_SANITIZE})
endif()

# vek_library(NAME SOURCES...): a shared library with hidden visibility, the alias vek::NAME and its
# part of the installation. UPPERCASE(NAME)_EXPORTS is defined while the library itself is compiled.
function(vek_library name)
  add_library(${name} SHARED ${ARGN})
  add_library(vek::${name} ALIAS ${name})
  string(TOUPPER ${name} upper)
  target_compile_definitions(${name} PRIVATE ${upper}_EXPORTS)
  target_compile_features(${name} PUBLIC cxx_std_17)
  target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:vek_build_options>)
  # Nobody puts a function of his own in the place of one of ours. So a library's references to itself,
  # the tables of virtual functions above all, need no search by name at each start.
  target_link_options(${name} PRIVATE $<$<PLATFORM_ID:Linux>:LINKER:-Bsymbolic-functions,-O1>)
  set_target_properties(${name} PROPERTIES
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    INSTALL_RPATH "$ORIGIN"
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
  install(TARGETS ${name} EXPORT vekTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
endfunction()

# std::auto_ptr says in a signature that ownership changes hands. The library has it under every
# standard, and warns; this switch keeps that one warning quiet for who compiles our headers.
function(vek_exposes_auto_ptr name)
  target_compile_options(${name} PUBLIC $<$<CXX_COMPILER_ID:GNU,Clang>:-Wno-deprecated-declarations>)
endfunction()
