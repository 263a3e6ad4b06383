vek_test(lumcore_tests
  SOURCES
    lumcore/XmlEncodingTest.cpp
    lumcore/XmlErrorsTest.cpp
    lumcore/XmlEventsTest.cpp
  LIBRARIES lumcore)
