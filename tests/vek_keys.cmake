vek_test(vek_keys_tests
  SOURCES
    uisupport/CommandRegistryTest.cpp
  LIBRARIES vek)
