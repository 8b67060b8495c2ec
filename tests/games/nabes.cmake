zafro_add_test(test_nabes SOURCES ${CMAKE_CURRENT_LIST_DIR}/nabes_test.cpp)
zafro_add_test(test_nabes_window UI SOURCES ${CMAKE_CURRENT_LIST_DIR}/nabes_window_test.cpp)
# Labelled here: the LABELS of zafro_add_test do not reach the discovered tests, as
# its environment list splits the properties.
add_executable(test_nabes_slow ${CMAKE_CURRENT_LIST_DIR}/nabes_slow_test.cpp)
target_link_libraries(test_nabes_slow PRIVATE zafro_test_support_ui)
gtest_discover_tests(test_nabes_slow DISCOVERY_TIMEOUT 60
                     PROPERTIES LABELS slow ENVIRONMENT QT_QPA_PLATFORM=offscreen)

# One key with a shot and one big shot's flight, bare and through the window; run by
# hand, not by CTest.
find_package(benchmark QUIET)
if(benchmark_FOUND)
  add_executable(bench_nabes ${CMAKE_CURRENT_LIST_DIR}/nabes_benchmark_test.cpp)
  target_link_libraries(bench_nabes PRIVATE zafro_ui benchmark::benchmark)
endif()
