vek_test(vek_tests
  SOURCES
    messaging/DeliveryTest.cpp
  LIBRARIES vek)
