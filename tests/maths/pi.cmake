list(APPEND MATHS_TEST_SOURCES ${CMAKE_CURRENT_LIST_DIR}/pi_test.cpp)
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/pi_test.cpp PROPERTIES COMPILE_DEFINITIONS
  "PI_REFERENCIA=\"${CMAKE_CURRENT_LIST_DIR}/pi_decimales.txt\"")

# The digits of pi against the clock; run by hand (scripts/bench-pi), not by CTest.
find_package(benchmark QUIET)
if(benchmark_FOUND)
  add_executable(bench_pi ${CMAKE_CURRENT_LIST_DIR}/pi_benchmark_test.cpp)
  target_link_libraries(bench_pi PRIVATE zafro_core benchmark::benchmark)
endif()

# Whole runs at the ceiling of the arithmetic take seconds.
zafro_add_test(test_pi_techo SOURCES ${CMAKE_CURRENT_LIST_DIR}/pi_techo_test.cpp LABELS slow)
