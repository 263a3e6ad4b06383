vek_test(vek_workspace_tests
  SOURCES
    support/UIApplication.cpp
    workspace/TopLevelWindowTest.cpp
    workspace/WorkspaceCommandsTest.cpp
  LIBRARIES vek)
set_tests_properties(vek_workspace_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
