list(APPEND ONLINE_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/fetch_cycle_test.cpp
     ${CMAKE_CURRENT_LIST_DIR}/divisas_test.cpp)
