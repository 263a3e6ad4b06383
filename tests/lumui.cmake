# The platform's windows, on a platform of Qt that shows nothing.
vek_test(lumui_tests
  SOURCES
    lumui/DragTest.cpp
    lumui/EventGateTest.cpp
    lumui/EventLoopTest.cpp
    lumui/FrameTest.cpp
    lumui/InputCaptureTest.cpp
    lumui/KeyboardCodeTest.cpp
    lumui/MenusTest.cpp
    lumui/MessageDialogTest.cpp
    lumui/NativeSideTest.cpp
    lumui/ScrollViewTest.cpp
    lumui/ThemeTest.cpp
    lumui/TimerTest.cpp
    lumui/WindowTest.cpp
    lumui/UITest.cpp
    support/UIApplication.cpp
  LIBRARIES lumui Qt6::Widgets)
set_tests_properties(lumui_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
vek_embed_resources(lumui_tests FILES lumui/resources/ICON_7.svg lumui/resources/ICON_8.svg)

# The same on a real X server with a window manager, where the tools for one are installed.
foreach(tool Xvfb openbox xdotool xprop setxkbmap)
  find_program(VEK_${tool} ${tool})
  if(NOT VEK_${tool})
    message(STATUS "No ${tool}: tests on a real display are left out")
    return()
  endif()
endforeach()
# The other program of drags that go from one to another.
add_executable(lumui_drag_partner support/DragPartnerProgram.cpp)
target_link_libraries(lumui_drag_partner PRIVATE Qt6::Widgets vek_build_options)
add_executable(lumui_display_tests
  lumui/DragDisplayTest.cpp lumui/RealDisplayTest.cpp lumui/UITest.cpp
  support/DragPartner.cpp support/RealInput.cpp support/UIApplication.cpp)
target_link_libraries(lumui_display_tests PRIVATE vek_test_support lumui Qt6::Widgets vek_build_options)
target_compile_definitions(lumui_display_tests PRIVATE
  LUMUI_DRAG_PARTNER="$<TARGET_FILE:lumui_drag_partner>")
add_dependencies(lumui_display_tests lumui_drag_partner)
add_test(NAME lumui_display_tests
  COMMAND ${CMAKE_CURRENT_SOURCE_DIR}/support/with_display.sh $<TARGET_FILE:lumui_display_tests>
    --gtest_brief=1
    --gtest_output=json:${CMAKE_CURRENT_BINARY_DIR}/results/lumui_display_tests.json)
set_tests_properties(lumui_display_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=xcb TIMEOUT 60)
