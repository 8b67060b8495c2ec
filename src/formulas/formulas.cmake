# cFormulas: logic in zafro_core; the developer tool and the fuzzer as their own targets.
target_sources(zafro_core PRIVATE ${CMAKE_CURRENT_LIST_DIR}/cformulas.cpp
                                  ${CMAKE_CURRENT_LIST_DIR}/cformulas_decimal.cpp)

# zafro-formula: prints Formula of each line of standard input, for trying formulas by
# hand; "--bench" times the launcher's bench formula.
add_executable(zafro-formula ${CMAKE_CURRENT_LIST_DIR}/zafro_formula_main.cpp)
target_link_libraries(zafro-formula PRIVATE zafro_core)
set_target_properties(zafro-formula PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})
