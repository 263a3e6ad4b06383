vek_test(vek_trackview_tests
  SOURCES
    trackview/AccessibilityTest.cpp
    trackview/CoordinatesTest.cpp
    trackview/DragsTest.cpp
    trackview/GesturesTest.cpp
    trackview/OverlaysTest.cpp
    trackview/PlatformViewTest.cpp
    trackview/RepaintTest.cpp
    lumui/UITest.cpp
    support/ShownPicture.cpp
    support/UIApplication.cpp
  LIBRARIES vek Qt6::Widgets Qt6::GuiPrivate)
set_tests_properties(vek_trackview_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)

# The same where a unit is no whole number of pixels.
foreach(scale 1.25 1.5)
  add_test(NAME vek_trackview_tests_at_${scale} COMMAND vek_trackview_tests --gtest_brief=1)
  set_tests_properties(vek_trackview_tests_at_${scale} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_SCALE_FACTOR=${scale}")
endforeach()

# Gestures on a real X server, where the tools for one are installed.
if(VEK_Xvfb AND VEK_openbox AND VEK_xdotool AND VEK_setxkbmap)
  add_executable(vek_trackview_display_tests
    trackview/RealDisplayTest.cpp lumui/UITest.cpp
    support/DragPartner.cpp support/RealInput.cpp support/UIApplication.cpp)
  target_link_libraries(vek_trackview_display_tests PRIVATE vek_test_support vek vek_build_options)
  target_compile_definitions(vek_trackview_display_tests PRIVATE
    LUMUI_DRAG_PARTNER="$<TARGET_FILE:lumui_drag_partner>")
  add_dependencies(vek_trackview_display_tests lumui_drag_partner)
  add_test(NAME vek_trackview_display_tests
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/support/with_display.sh
      $<TARGET_FILE:vek_trackview_display_tests> --gtest_brief=1
      --gtest_output=json:${CMAKE_CURRENT_BINARY_DIR}/results/vek_trackview_display_tests.json)
  set_tests_properties(vek_trackview_display_tests PROPERTIES
    ENVIRONMENT QT_QPA_PLATFORM=xcb TIMEOUT 60)
endif()
