vek_test(outliner_tests
  SOURCES
    hosts/OpmlRoundTripTest.cpp
    hosts/OutlineDocumentTest.cpp
    hosts/OutlineEditsTest.cpp
    hosts/OutlineText.cpp
    hosts/TempFolder.cpp
  LIBRARIES outliner_core)
