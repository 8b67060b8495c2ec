list(APPEND MATHS_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/calculators_test.cpp
     ${CMAKE_CURRENT_LIST_DIR}/calculators_window_test.cpp)
