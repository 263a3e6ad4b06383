# The shortcut dialog, its logic, and the key maps of the start.
vek_test(vek_shortcuts_tests
  SOURCES
    sharedui/ShortcutDialogTest.cpp
    sharedui/ShortcutEditorTest.cpp
    support/UIApplication.cpp
    uisupport/UserKeyMapTest.cpp
  LIBRARIES vek)
vek_embed_resources(vek_shortcuts_tests
  FILES sharedui/resources/DefaultKeyMap.xml sharedui/resources/DefaultKeyMap-de_DE.xml)
