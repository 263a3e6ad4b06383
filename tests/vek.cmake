vek_test(vek_tests
  SOURCES
    messaging/DeliveryTest.cpp
    undo/DeedTest.cpp
    undo/MultiDeedTest.cpp
  LIBRARIES vek)
