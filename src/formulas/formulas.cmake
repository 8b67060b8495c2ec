# cFormulas: logic in zafro_core; the developer tool and the fuzzer as their own targets.
target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/cformulas.cpp
                                  ${CMAKE_CURRENT_LIST_DIR}/cformulas_decimal.cpp)

# zafro-formula: prints Formula of each line of standard input, for trying formulas by
# hand; "--bench" times the launcher's bench formula.
add_executable(zafro-formula ${CMAKE_CURRENT_LIST_DIR}/zafro_formula_main.cpp)
target_link_libraries(zafro-formula PRIVATE zafro_core)
set_target_properties(zafro-formula PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})

# fuzz_formulas: libFuzzer needs clang. The target compiles only what the evaluator
# needs, with its own instrumentation, so that scripts/fuzz does not build the suite.
option(ZAFRO_FUZZ "Build the libFuzzer target fuzz_formulas (clang only)" OFF)
if(ZAFRO_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "ZAFRO_FUZZ needs clang (CXX=clang++)")
  endif()
  set(_zafro_src ${CMAKE_CURRENT_LIST_DIR}/..)
  add_executable(fuzz_formulas
    ${CMAKE_CURRENT_LIST_DIR}/fuzz_formulas.cpp
    ${CMAKE_CURRENT_LIST_DIR}/cformulas.cpp
    ${CMAKE_CURRENT_LIST_DIR}/cformulas_decimal.cpp
    ${_zafro_src}/maths/calculadora.cpp
    ${_zafro_src}/maths/romanos.cpp
    ${_zafro_src}/platform/services.cpp
    ${_zafro_src}/runtime/arith.cpp
    ${_zafro_src}/runtime/classic_random.cpp
    ${_zafro_src}/runtime/convert.cpp
    ${_zafro_src}/runtime/numtext.cpp
    ${_zafro_src}/runtime/region.cpp
    ${_zafro_src}/runtime/rounding.cpp
    ${_zafro_src}/runtime/runtime_error.cpp)
  target_include_directories(fuzz_formulas PRIVATE ${_zafro_src})
  target_compile_definitions(fuzz_formulas PRIVATE FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION)
  target_compile_options(fuzz_formulas PRIVATE -fsanitize=fuzzer,address,undefined
                                               -fno-sanitize-recover=undefined)
  target_link_options(fuzz_formulas PRIVATE -fsanitize=fuzzer,address,undefined)
  target_link_libraries(fuzz_formulas PRIVATE Qt6::Core)
  set_target_properties(fuzz_formulas PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
endif()
