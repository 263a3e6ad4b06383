vek_test(vek_resources_tests
  SOURCES
    support/UIApplication.cpp
    utility/EmbeddingTest.cpp
    utility/ResourceTablesTest.cpp
    utility/ResourcesTest.cpp
    utility/ThemeDocumentsTest.cpp
    utility/ThemedControlsTest.cpp
    utility/VekResourcesTest.cpp
  LIBRARIES vek Qt6::Widgets)
target_compile_definitions(vek_resources_tests PRIVATE
  "VEK_EMBED=\"$<TARGET_FILE:vek_embed>\""
  "VEK_THEME_COLORS=\"${PROJECT_SOURCE_DIR}/platform/lumui/include/lumui/ui/ThemeColors.h\""
  "VEK_THEME_CONTRASTS=\"${PROJECT_SOURCE_DIR}/vek/resources/themes/contrasts.txt\"")
add_dependencies(vek_resources_tests vek_embed)
# One of the names stands in vek too, with another picture.
vek_embed_resources(vek_resources_tests
  FILES
    utility/resources/note.xml utility/resources/empty.xml
    utility/resources/S_DELETE_MD_N_D_AT_2X.svg
  DOCUMENTS
    utility/resources/entities.xml utility/resources/parameters.xml
  IMAGES utility/resources/DOT.svg SCALES 300 100 150 200
  SIZES BIG=10 SM=4 INKS "N=#ff0000" "S=#0000ff")
