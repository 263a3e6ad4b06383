vek_test(vek_hierarchyview_tests
  SOURCES
    hierarchyview/ColumnsTest.cpp
    hierarchyview/EntryTest.cpp
    hierarchyview/GeometryTest.cpp
    hierarchyview/RowGeometryTest.cpp
    hierarchyview/WalkFuzzTest.cpp
  LIBRARIES vek)
