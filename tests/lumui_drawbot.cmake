vek_test(lumui_drawbot_tests
  SOURCES
    support/UIApplication.cpp
    lumui/drawbotClipTest.cpp
    lumui/drawbotImageTest.cpp
    lumui/drawbotShapesTest.cpp
    lumui/drawbotTextTest.cpp
  LIBRARIES lumui Qt6::Widgets)
