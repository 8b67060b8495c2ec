list(APPEND FORMULAS_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/graphs_test.cpp
     ${CMAKE_CURRENT_LIST_DIR}/graphs_window_test.cpp)

# Setting the dots of one curve into a surface; run by hand, not by CTest.
find_package(benchmark QUIET)
if(benchmark_FOUND)
  add_executable(bench_graphs ${CMAKE_CURRENT_LIST_DIR}/graphs_benchmark_test.cpp)
  target_link_libraries(bench_graphs PRIVATE zafro_ui benchmark::benchmark)
endif()
