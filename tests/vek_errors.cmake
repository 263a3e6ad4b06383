vek_test(vek_errors_tests
  SOURCES
    support/UIApplication.cpp
    uisupport/DeferredActionsTest.cpp
    uisupport/ReportErrorTest.cpp
  LIBRARIES vek)
