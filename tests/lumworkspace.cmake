vek_test(lumworkspace_tests
  SOURCES lumworkspace/WorkspaceTest.cpp support/UIApplication.cpp
  LIBRARIES lumworkspace)
