vek_test(vek_documents_tests
  SOURCES
    document/FactoryTest.cpp
    document/FileBasedDocumentTest.cpp
    support/UIApplication.cpp
  LIBRARIES vek)
