list(APPEND FORMULAS_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/formulas_test.cpp
                                  ${CMAKE_CURRENT_LIST_DIR}/formulas_decimal_test.cpp)
