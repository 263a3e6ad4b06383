vek_test(vek_tests
  SOURCES
    messaging/DeliveryTest.cpp
    undo/DeedTest.cpp
    undo/MultiDeedTest.cpp
    undo/MultiUndoerTest.cpp
    undo/TrimmingTest.cpp
    selection/ActiveManagerTest.cpp
    selection/ManagerTest.cpp
  LIBRARIES vek)
