# The positions of virtual operations can be read where the C++ ABI is known to show them.
set(vek_abi_tests)
if(UNIX AND CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|amd64|AMD64")
  set(vek_abi_tests config/VirtualOrderTest.cpp)
endif()

vek_test(vek_tests
  SOURCES
    ${vek_abi_tests}
    messaging/DeliveryTest.cpp
    selection/ActiveManagerTest.cpp
    selection/ManagerTest.cpp
    uisupport/CommandChainTest.cpp
    uisupport/CommandFocusTest.cpp
    undo/DeedTest.cpp
    undo/MultiDeedTest.cpp
    undo/MultiUndoerTest.cpp
    undo/TrimmingTest.cpp
  LIBRARIES vek)

# Apart, since it replaces operator new.
vek_test(vek_allocation_tests
  SOURCES
    messaging/AllocationTest.cpp
    support/AllocationCount.cpp
  LIBRARIES vek)
