list(APPEND MATHS_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/matrices_test.cpp
     ${CMAKE_CURRENT_LIST_DIR}/matrices_window_test.cpp)
