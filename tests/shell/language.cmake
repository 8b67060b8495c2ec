# The language table: its loaders and its data file.
list(APPEND SHELL_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/language_test.cpp)
