vek_test(lumworkspace_tests
  SOURCES
    lumworkspace/ManagerTest.cpp
    lumworkspace/PanelsTest.cpp
    lumworkspace/SwitcherTest.cpp
    lumworkspace/WorkspaceTest.cpp
    support/UIApplication.cpp
  LIBRARIES lumworkspace Qt6::Widgets)
set_tests_properties(lumworkspace_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)

# The same where a unit is no whole number of pixels, on a screen of as many units.
foreach(scale_and_pixels "1.25 1000" "1.5 1200")
  separate_arguments(scale_and_pixels)
  list(GET scale_and_pixels 0 scale)
  list(GET scale_and_pixels 1 pixels)
  set(screens ${CMAKE_CURRENT_BINARY_DIR}/screens_${scale}.json)
  file(WRITE ${screens}
    "{\"screens\": [{\"name\": \"scaled\", \"x\": 0, \"y\": 0, \"width\": ${pixels}, \"height\": ${pixels}}]}\n")
  add_test(NAME lumworkspace_tests_at_${scale} COMMAND lumworkspace_tests --gtest_brief=1)
  set_tests_properties(lumworkspace_tests_at_${scale} PROPERTIES
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen:configfile=${screens};QT_SCALE_FACTOR=${scale}")
endforeach()
