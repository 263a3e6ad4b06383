vek_test(vek_sharedui_tools_tests
  SOURCES
    sharedui/ViewToolsTest.cpp
    lumui/UITest.cpp
    support/UIApplication.cpp
  LIBRARIES vek)
set_tests_properties(vek_sharedui_tools_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
vek_test(vek_sharedui_lists_tests
  SOURCES
    sharedui/MultiTreeListFuzzTest.cpp
    sharedui/MultiTreeListTest.cpp
    lumui/UITest.cpp
    support/UIApplication.cpp
  LIBRARIES vek)
set_tests_properties(vek_sharedui_lists_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
vek_test(vek_sharedui_shell_tests
  SOURCES
    sharedui/CommonFileDialogTest.cpp
    sharedui/ShellTreeTest.cpp
    lumui/UITest.cpp
    support/UIApplication.cpp
  LIBRARIES vek)
set_tests_properties(vek_sharedui_shell_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
