list(APPEND MATHS_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/calculos_test.cpp
     ${CMAKE_CURRENT_LIST_DIR}/calculos_window_test.cpp)
