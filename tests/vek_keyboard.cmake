vek_test(vek_keyboard_tests
  SOURCES
    sharedui/KeyboardMapTest.cpp
    support/UIApplication.cpp
  LIBRARIES vek)
set_tests_properties(vek_keyboard_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
