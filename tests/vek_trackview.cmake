vek_test(vek_trackview_tests
  SOURCES
    trackview/CoordinatesTest.cpp
    trackview/DragsTest.cpp
    trackview/GesturesTest.cpp
    trackview/OverlaysTest.cpp
    trackview/PlatformViewTest.cpp
    lumui/UITest.cpp
    support/UIApplication.cpp
  LIBRARIES vek)
set_tests_properties(vek_trackview_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
