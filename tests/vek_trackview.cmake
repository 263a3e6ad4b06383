vek_test(vek_trackview_tests
  SOURCES
    trackview/AccessibilityTest.cpp
    trackview/CoordinatesTest.cpp
    trackview/DragsTest.cpp
    trackview/GesturesTest.cpp
    trackview/OverlaysTest.cpp
    trackview/PlatformViewTest.cpp
    lumui/UITest.cpp
    support/UIApplication.cpp
  LIBRARIES vek Qt6::Widgets Qt6::GuiPrivate)
set_tests_properties(vek_trackview_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)

# Gestures on a real X server, where the tools for one are installed.
if(VEK_Xvfb AND VEK_openbox AND VEK_xdotool AND VEK_setxkbmap)
  add_executable(vek_trackview_display_tests
    trackview/RealDisplayTest.cpp lumui/UITest.cpp support/UIApplication.cpp)
  target_link_libraries(vek_trackview_display_tests PRIVATE vek_test_support vek vek_build_options)
  add_test(NAME vek_trackview_display_tests
    COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/support/with_display.sh
      $<TARGET_FILE:vek_trackview_display_tests> --gtest_brief=1
      --gtest_output=json:${CMAKE_CURRENT_BINARY_DIR}/results/vek_trackview_display_tests.json)
  set_tests_properties(vek_trackview_display_tests PROPERTIES
    ENVIRONMENT QT_QPA_PLATFORM=xcb TIMEOUT 60)
endif()
