vek_test(lumworkspace_tests
  SOURCES
    lumworkspace/ManagerTest.cpp
    lumworkspace/PanelsTest.cpp
    lumworkspace/WorkspaceTest.cpp
    support/UIApplication.cpp
  LIBRARIES lumworkspace)
set_tests_properties(lumworkspace_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
