vek_test(outliner_tests
  SOURCES
    hosts/CommandFilesTest.cpp
    hosts/DocumentsTest.cpp
    hosts/FileCheckTest.cpp
    hosts/HistoryTest.cpp
    hosts/MapGesturesTest.cpp
    hosts/MapLayoutTest.cpp
    hosts/MapRepaintTest.cpp
    hosts/OpmlRoundTripTest.cpp
    hosts/OutlineDocumentTest.cpp
    hosts/OutlineEditsTest.cpp
    hosts/OutlineListFuzzTest.cpp
    hosts/OutlineListKeysTest.cpp
    hosts/OutlineListTest.cpp
    hosts/OutlineText.cpp
    hosts/OutlinerGesturesTest.cpp
    hosts/PanelsTest.cpp
    hosts/PropertiesTest.cpp
    hosts/RunningOutliner.cpp
    hosts/ScriptRunTest.cpp
    hosts/ShortcutsTest.cpp
    hosts/ToolPanelsTest.cpp
    hosts/SearchTest.cpp
    support/ShownPicture.cpp
    support/UIApplication.cpp
  LIBRARIES outliner_core Qt6::Widgets)

# Pictures where a unit is no whole number of pixels.
foreach(scale 1.25 1.5 2)
  add_test(NAME outliner_pictures_at_${scale}
    COMMAND outliner_tests --gtest_brief=1 --gtest_filter=MapRepaints.*)
  set_tests_properties(outliner_pictures_at_${scale} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_SCALE_FACTOR=${scale}" TIMEOUT 300)
endforeach()

add_test(NAME outliner_program COMMAND ${CMAKE_COMMAND}
  -DPROGRAM=$<TARGET_FILE:vek_outliner> -DSOURCE_DIR=${PROJECT_SOURCE_DIR}
  -DWORK_DIR=${CMAKE_CURRENT_BINARY_DIR}/outliner_program
  -P ${CMAKE_CURRENT_SOURCE_DIR}/hosts/ProgramTest.cmake)
set_tests_properties(outliner_program PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
# It tells its usage by the system's language or the one that is asked for.
add_test(NAME outliner_speaks_the_systems_language COMMAND vek_outliner --help)
add_test(NAME outliner_speaks_the_language_asked_for COMMAND vek_outliner --help --language de_AT)
set_tests_properties(outliner_speaks_the_systems_language PROPERTIES
  ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=de_DE.UTF-8")
set_tests_properties(outliner_speaks_the_language_asked_for PROPERTIES
  ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C")
set_tests_properties(outliner_speaks_the_systems_language outliner_speaks_the_language_asked_for
  PROPERTIES PASS_REGULAR_EXPRESSION "bearbeitet Gliederungen")

foreach(tool Xvfb openbox setxkbmap xdotool)
  find_program(VEK_${tool} ${tool})
  if(NOT VEK_${tool})
    message(STATUS "No ${tool}: the outliner's test on a real display is left out")
    return()
  endif()
endforeach()
foreach(topic shortcuts signals)
  add_test(NAME outliner_${topic}_on_a_display
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/support/with_display.sh
      ${CMAKE_CURRENT_SOURCE_DIR}/hosts/${topic}_on_a_display.sh $<TARGET_FILE:vek_outliner>
      ${CMAKE_CURRENT_BINARY_DIR}/${topic}_on_a_display)
  set_tests_properties(outliner_${topic}_on_a_display PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=xcb;QT_SCALE_FACTOR=1" TIMEOUT 60)
endforeach()
