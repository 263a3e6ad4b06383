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
