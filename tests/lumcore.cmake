# Blocks come back only where the pool is in use (see platform/lumcore).
if(NOT VEK_SANITIZE MATCHES "address")
  set(pool_tests lumcore/SmallBlockReuseTest.cpp)
endif()
vek_test(lumcore_tests
  SOURCES
    lumcore/ContractTest.cpp
    lumcore/ConversionTest.cpp
    lumcore/FilesTest.cpp
    lumcore/PropListTest.cpp
    lumcore/RectanglesTest.cpp
    lumcore/ReplacingTest.cpp
    lumcore/SmallBlocksTest.cpp
    lumcore/XmlEncodingTest.cpp
    lumcore/XmlErrorsTest.cpp
    lumcore/XmlEventsTest.cpp
    ${pool_tests}
  LIBRARIES lumcore)
