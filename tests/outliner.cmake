vek_test(outliner_tests
  SOURCES
    hosts/OpmlRoundTripTest.cpp
    hosts/OutlineText.cpp
  LIBRARIES outliner_core)
