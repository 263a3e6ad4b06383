vek_test(vek_trees_tests
  SOURCES
    hierarchyview/TreeAccessibilityTest.cpp
    hierarchyview/TreeFuzzTest.cpp
    hierarchyview/TreeKeysTest.cpp
    hierarchyview/TreePaintingTest.cpp
    hierarchyview/TreePicturesTest.cpp
    hierarchyview/TreeTrackersTest.cpp
    hierarchyview/TreeWindowTest.cpp
    lumui/UITest.cpp
    support/UIApplication.cpp
  LIBRARIES vek Qt6::Widgets Qt6::GuiPrivate)
set_tests_properties(vek_trees_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
target_compile_definitions(vek_trees_tests PRIVATE
  "TEST_PICTURES=\"${CMAKE_CURRENT_SOURCE_DIR}/hierarchyview/pictures\"")
