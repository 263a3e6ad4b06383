# vek_write_panel_archive(FILE COUNT): a node archive of that many nodes: a view with texts, buttons,
# boxes, fields and popups in a grid, each with an id.
function(vek_write_panel_archive file count)
  set(classes UI_StaticText UI_TextButton UI_Checkbox UI_TextEdit UI_Popup)
  set(text "<prop.pair><key>text</key><ustring>Text</ustring></prop.pair>")
  set(children "")
  math(EXPR last "${count} - 2")
  foreach(i RANGE ${last})
    math(EXPR kind "${i} % 5")
    math(EXPR left "${i} % 10 * 100")
    math(EXPR top "${i} / 10 * 24")
    list(GET classes ${kind} class)
    set(properties "${text}")
    set(owner ${class})
    if(class STREQUAL UI_Checkbox)
      set(owner UI_TextButton)
    elseif(class STREQUAL UI_Popup)
      set(properties "<prop.pair><key>alwaysNotify</key><true/></prop.pair>")
    endif()
    string(APPEND children "<prop.pair><key>child-${i}</key><prop.list>"
      "<prop.pair><key>adapter</key><ustring>lumui::controls::${class}</ustring></prop.pair>"
      "<prop.pair><key>sections</key><prop.list>"
      "<prop.pair><key>count</key><int type='unsigned' size='32'>2</int></prop.pair>"
      "<prop.pair><key>section-0</key><prop.list><prop.pair><key>sectionName</key>"
      "<ustring>lumui::controls::${owner}</ustring></prop.pair>${properties}</prop.list></prop.pair>"
      "<prop.pair><key>section-1</key><prop.list><prop.pair><key>sectionName</key>"
      "<ustring>lumui::ui::UI_Node</ustring></prop.pair><prop.pair><key>bounds</key><prop.list>"
      "<prop.pair><key>.aptype</key><int type='signed' size='32'>1</int></prop.pair>"
      "<prop.pair><key>height</key><float>22</float></prop.pair>"
      "<prop.pair><key>left</key><float>${left}</float></prop.pair>"
      "<prop.pair><key>top</key><float>${top}</float></prop.pair>"
      "<prop.pair><key>width</key><float>96</float></prop.pair></prop.list></prop.pair>"
      "<prop.pair><key>id</key><ustring>Node${i}</ustring></prop.pair>"
      "</prop.list></prop.pair></prop.list></prop.pair></prop.list></prop.pair>\n")
  endforeach()
  math(EXPR held "${count} - 1")
  string(CONCAT archive "<?xml version='1.0'?>\n<prop.map version='4'><prop.list>"
    "<prop.pair><key>UINodeArchive</key><int type='unsigned' size='32'>1</int></prop.pair>"
    "<prop.pair><key>root</key><prop.list>"
    "<prop.pair><key>adapter</key><ustring>lumui::ui::UI_SubView</ustring></prop.pair>"
    "<prop.pair><key>sections</key><prop.list>"
    "<prop.pair><key>count</key><int type='unsigned' size='32'>1</int></prop.pair>"
    "<prop.pair><key>section-0</key><prop.list>"
    "<prop.pair><key>sectionName</key><ustring>lumui::ui::UI_Node</ustring></prop.pair>"
    "<prop.pair><key>children</key><prop.list>"
    "<prop.pair><key>count</key><int type='unsigned' size='32'>${held}</int></prop.pair>\n"
    "${children}</prop.list></prop.pair></prop.list></prop.pair></prop.list></prop.pair>"
    "</prop.list></prop.pair></prop.list></prop.map>\n")
  file(CONFIGURE OUTPUT ${file} CONTENT "${archive}" @ONLY)
endfunction()
