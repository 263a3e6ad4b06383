# Controls, the archives that they are built from, and dialogs.
vek_test(lumui_controls_tests
  SOURCES
    lumui/ArchivedDialogTest.cpp
    lumui/ControlsTest.cpp
    lumui/LayoutTest.cpp
    lumui/MultiColumnTreeTest.cpp
    lumui/NodeArchiveTest.cpp
    lumui/UITest.cpp
    support/UIApplication.cpp
  LIBRARIES lumui Qt6::Widgets)
set_tests_properties(lumui_controls_tests PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
set(icons ${PROJECT_SOURCE_DIR}/vek/resources/images)
vek_embed_resources(lumui_controls_tests
  FILES lumui/resources/exportdialog.xml utility/resources/empty.xml
  IMAGES ${icons}/UISHELL_FOLDER.svg)
vek_embed_resources(lumui_controls_tests
  IMAGES ${icons}/SP_DELETE.svg SCALES 100 200 SIZES MD=16 INKS "N=#7d7d7d")
