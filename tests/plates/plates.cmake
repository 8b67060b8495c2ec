list(APPEND PLATES_TEST_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/matriculas_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/matriculas_window_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/plates_update_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/provincial_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/provincial_window_test.cpp)
set_property(SOURCE ${CMAKE_CURRENT_LIST_DIR}/plates_update_test.cpp APPEND PROPERTY
  COMPILE_DEFINITIONS ZAFRO_SERVER_DIR="${PROJECT_SOURCE_DIR}/server")
set_property(SOURCE ${CMAKE_CURRENT_LIST_DIR}/provincial_test.cpp
  ${CMAKE_CURRENT_LIST_DIR}/provincial_window_test.cpp APPEND PROPERTY
  COMPILE_DEFINITIONS ZAFRO_PLATES_TEST_DATA="${CMAKE_CURRENT_LIST_DIR}/data")
