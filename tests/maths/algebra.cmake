list(APPEND MATHS_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/algebra_test.cpp
     ${CMAKE_CURRENT_LIST_DIR}/algebra_window_test.cpp)
