# The launcher's services: their rules alone, and on the window.
list(APPEND SHELL_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/launcher_services_test.cpp
                               ${CMAKE_CURRENT_LIST_DIR}/index_services_test.cpp)

# One tick of the chasing letters; run by hand.
find_package(benchmark QUIET)
if(benchmark_FOUND)
  add_executable(bench_index ${CMAKE_CURRENT_LIST_DIR}/index_benchmark.cpp)
  target_link_libraries(bench_index PRIVATE zafro_ui benchmark::benchmark)
endif()
