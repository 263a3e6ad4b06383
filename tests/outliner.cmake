vek_test(outliner_tests
  SOURCES
    hosts/EditScriptTest.cpp
    hosts/OpmlRoundTripTest.cpp
    hosts/OutlineDocumentTest.cpp
    hosts/OutlineEditsTest.cpp
    hosts/OutlineText.cpp
    hosts/OutlinerGesturesTest.cpp
    hosts/RunningOutliner.cpp
    support/UIApplication.cpp
  LIBRARIES outliner_core)
