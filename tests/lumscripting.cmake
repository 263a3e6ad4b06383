vek_test(lumscripting_tests
  SOURCES lumscripting/ScriptRunnerTest.cpp support/UIApplication.cpp
  LIBRARIES lumscripting lumui)
