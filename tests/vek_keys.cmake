vek_test(vek_keys_tests
  SOURCES
    uisupport/CommandRegistryTest.cpp
    uisupport/KeyMapFileTest.cpp
    uisupport/KeyMappingsTest.cpp
    uisupport/KeyRoutingTest.cpp
  LIBRARIES vek)
