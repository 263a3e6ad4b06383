vek_test(vek_scripting_tests
  SOURCES
    support/UIApplication.cpp
    uisupport/ScriptCommandsTest.cpp
  LIBRARIES vek)
