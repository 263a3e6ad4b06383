vek_test(vek_app_tests
  SOURCES
    app/DocumentApplicationTest.cpp
    app/EventPumpTest.cpp
    app/LifeCycleTest.cpp
    support/UIApplication.cpp
  LIBRARIES vek)
