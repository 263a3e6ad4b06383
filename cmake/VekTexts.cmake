# vek_texts(DOMAIN FOLDER): compiles each translation FOLDER/<language>.po into the build tree, at the
# place below share/ that it has in an installation, where programs and libraries look for it. Gives
# the target DOMAIN_texts. Of a translation, what is marked as fuzzy and what is empty stays English.
function(vek_texts domain folder)
  file(GLOB translations CONFIGURE_DEPENDS ${folder}/*.po)
  set(compiled "")
  foreach(translation IN LISTS translations)
    get_filename_component(language ${translation} NAME_WE)
    set(place share/${domain}/locale/${language}/LC_MESSAGES)
    set(catalogue ${PROJECT_BINARY_DIR}/${place}/${domain}.mo)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/${place})
    add_custom_command(OUTPUT ${catalogue}
      COMMAND ${GETTEXT_MSGFMT_EXECUTABLE} --check-format --check-domain -o ${catalogue} ${translation}
      DEPENDS ${translation} VERBATIM)
    list(APPEND compiled ${catalogue})
    install(FILES ${catalogue}
      DESTINATION ${CMAKE_INSTALL_DATADIR}/${domain}/locale/${language}/LC_MESSAGES)
  endforeach()
  add_custom_target(${domain}_texts ALL DEPENDS ${compiled})
endfunction()
