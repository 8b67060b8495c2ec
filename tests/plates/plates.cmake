list(APPEND PLATES_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/matriculas_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/matriculas_window_test.cpp)
