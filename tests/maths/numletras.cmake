list(APPEND MATHS_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/numletras_test.cpp)

# Spelling the longest numbers; run by hand, not by CTest.
find_package(benchmark QUIET)
if(benchmark_FOUND)
  add_executable(bench_numletras ${CMAKE_CURRENT_LIST_DIR}/numletras_benchmark_test.cpp)
  target_link_libraries(bench_numletras PRIVATE zafro_core benchmark::benchmark)
endif()
