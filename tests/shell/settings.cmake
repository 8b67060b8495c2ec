# The settings store: its file, its recovery and the values it maps elsewhere.
list(APPEND SHELL_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/settings_test.cpp)
