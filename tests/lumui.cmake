# The platform's windows, on a platform of Qt that shows nothing.
vek_test(lumui_tests
  SOURCES
    lumui/EventGateTest.cpp
    lumui/EventLoopTest.cpp
    lumui/InputCaptureTest.cpp
    lumui/KeyboardCodeTest.cpp
    lumui/MessageDialogTest.cpp
    lumui/NativeSideTest.cpp
    lumui/ScrollViewTest.cpp
    lumui/TimerTest.cpp
    lumui/WindowTest.cpp
    lumui/UITest.cpp
  LIBRARIES lumui Qt6::Widgets)
set_tests_properties(lumui_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
