vek_test(vek_workspace_tests
  SOURCES
    support/UIApplication.cpp
    workspace/TopLevelWindowTest.cpp
    workspace/ViewDebuggerTest.cpp
    workspace/WorkspaceCommandsTest.cpp
  LIBRARIES vek)
set_tests_properties(vek_workspace_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)

# Apart, since its panels register themselves with every application of the program.
vek_test(vek_panels_tests
  SOURCES
    support/UIApplication.cpp
    workspace/GenericPanelTest.cpp
  LIBRARIES vek)
set_tests_properties(vek_panels_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
vek_embed_resources(vek_panels_tests
  FILES workspace/resources/swatches.xml workspace/resources/cutoff.xml)
