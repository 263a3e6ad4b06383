# Blocks come back only where the pool is in use (see platform/lumcore).
if(NOT VEK_SANITIZE MATCHES "address")
  set(pool_tests lumcore/SmallBlockReuseTest.cpp)
endif()
vek_test(lumcore_tests
  SOURCES
    lumcore/CatalogueTest.cpp
    lumcore/ContractTest.cpp
    lumcore/ConversionTest.cpp
    lumcore/DebugDatabaseTest.cpp
    lumcore/ErrorManagerTest.cpp
    lumcore/FilesTest.cpp
    lumcore/PlacesTest.cpp
    lumcore/PropListTest.cpp
    lumcore/RectanglesTest.cpp
    lumcore/ReplacingTest.cpp
    lumcore/SmallBlocksTest.cpp
    lumcore/XmlEncodingTest.cpp
    lumcore/XmlErrorsTest.cpp
    lumcore/XmlEventsTest.cpp
    ${pool_tests}
  LIBRARIES lumcore)
add_dependencies(lumcore_tests vek_texts)
target_compile_definitions(lumcore_tests PRIVATE
  VEK_TEXTS="${PROJECT_BINARY_DIR}/share/vek/locale/de/LC_MESSAGES/vek.mo")

add_test(NAME extract_keys COMMAND bash -c
  "diff <(${PROJECT_SOURCE_DIR}/tools/extract-keys keys.txt keys.xml) expected.pot"
  WORKING_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/tools)
