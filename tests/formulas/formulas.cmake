list(APPEND FORMULAS_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/formulas_test.cpp
                                  ${CMAKE_CURRENT_LIST_DIR}/formulas_decimal_test.cpp)

# The evaluator's times, the fuzzing corpus's slowest input among them; run by hand.
find_package(benchmark QUIET)
if(benchmark_FOUND)
  add_executable(bench_formulas ${CMAKE_CURRENT_LIST_DIR}/formulas_benchmark.cpp)
  target_link_libraries(bench_formulas PRIVATE zafro_core benchmark::benchmark)
  target_compile_definitions(bench_formulas PRIVATE
    ZAFRO_FORMULAS_CORPUS="${PROJECT_SOURCE_DIR}/tests/fuzz/corpus/formulas")
endif()
