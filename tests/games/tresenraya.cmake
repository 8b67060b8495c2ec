list(APPEND GAMES_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/tresenraya_test.cpp
     ${CMAKE_CURRENT_LIST_DIR}/tresenraya_window_test.cpp)
