vek_test(lumscripting_tests
  SOURCES
    lumscripting/ScriptObjectsTest.cpp
    lumscripting/ScriptRunnerTest.cpp
    support/UIApplication.cpp
  LIBRARIES lumscripting lumui)
add_dependencies(lumscripting_tests lumscripting_engine)
