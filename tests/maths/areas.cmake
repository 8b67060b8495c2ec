list(APPEND MATHS_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/areas_test.cpp
     ${CMAKE_CURRENT_LIST_DIR}/areas_window_test.cpp)
