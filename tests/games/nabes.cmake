zafro_add_test(test_nabes SOURCES ${CMAKE_CURRENT_LIST_DIR}/nabes_test.cpp)
zafro_add_test(test_nabes_window UI SOURCES ${CMAKE_CURRENT_LIST_DIR}/nabes_window_test.cpp)
zafro_add_test(test_nabes_slow UI SOURCES ${CMAKE_CURRENT_LIST_DIR}/nabes_slow_test.cpp
               LABELS slow)

# One key with a shot and one big shot's flight, bare and through the window; run by
# hand, not by CTest.
find_package(benchmark QUIET)
if(benchmark_FOUND)
  add_executable(bench_nabes ${CMAKE_CURRENT_LIST_DIR}/nabes_benchmark_test.cpp)
  target_link_libraries(bench_nabes PRIVATE zafro_ui benchmark::benchmark)
endif()
