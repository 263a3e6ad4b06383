vek_test(vek_menus_tests
  SOURCES
    app/MenuStateTest.cpp
    support/UIApplication.cpp
    uisupport/PlatformMenuTest.cpp
  LIBRARIES vek)
set_tests_properties(vek_menus_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
